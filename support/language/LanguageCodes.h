#pragma once

#include <array>
#include <cstdint>
#include <string>

// The languages by their number in the settings: 0 German, 1 English.
inline constexpr std::array kLanguageCodes = {"de", "us"};

// "de", "us"; empty for a number without a language.
[[nodiscard]] inline std::string LanguageCodeOrNone(std::int32_t language) {
    return language >= 0 && language < static_cast<std::int32_t>(kLanguageCodes.size())
               ? kLanguageCodes[static_cast<std::size_t>(language)]
               : std::string();
}
