#pragma once

#include <cstdint>
#include <string>

// The numbered message texts of the active language.
class InfoTexts {
public:
    virtual ~InfoTexts() = default;

    // UTF-8.  number: InfoTextNumber.
    [[nodiscard]] virtual std::string GetInfoText(std::int32_t number) = 0;
};
