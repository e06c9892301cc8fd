#pragma once

#include <cstdint>
#include <string>

// The numbered message texts of the active language.
class InfoTexts {
public:
    virtual ~InfoTexts() = default;

    // UTF-8.  number: InfoTextNumber.
    [[nodiscard]] virtual std::string GetInfoText(std::int32_t number) = 0;

    // builtIn: what to give while no language file has the text.  A language whose file is missing
    // leaves the texts of the language before.
    [[nodiscard]] virtual std::string GetInfoTextOr(std::int32_t number,
                                                    const std::string& builtIn) = 0;
};
