#pragma once

#include "resources/controls.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace LanguageNumber {
inline constexpr std::int16_t German = 0;
inline constexpr std::int16_t English = 1;
} // namespace LanguageNumber

// A language of the program.
struct Language {
    std::int16_t number; // in the settings
    const char* code;    // in the names of its files
    int command;         // IDM_ number of its menu entry
};

inline constexpr std::array kLanguages = {
    Language{LanguageNumber::German, "de", IDM_mnuOptionsLngGerman},
    Language{LanguageNumber::English, "us", IDM_mnuOptionsLngEnglish},
};

// Null for a number without a language.
[[nodiscard]] constexpr const Language* FindLanguage(std::int32_t number) noexcept {
    const auto language = std::ranges::find(kLanguages, number, &Language::number);
    return language != kLanguages.end() ? std::to_address(language) : nullptr;
}

// Empty for a number without a language.
[[nodiscard]] inline std::string LanguageCodeOrNone(std::int32_t number) {
    const Language* language = FindLanguage(number);
    return language != nullptr ? language->code : std::string();
}
