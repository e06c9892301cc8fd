#include "common/ShownNumbers.h"

#include <array>
#include <charconv>

namespace {

constexpr std::size_t kGroup = 3; // digits

} // namespace

std::string WithThousands(int number, const std::string& sign) {
    std::string text = std::to_string(number);
    for (std::size_t digits = text.size(); digits > kGroup;) {
        digits -= kGroup;
        text.insert(digits, sign);
    }
    return text;
}

std::string WithDecimals(double number, int decimals, const std::string& sign) {
    std::array<char, 400> buffer{}; // the largest number has 309 digits
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                            std::chars_format::fixed, decimals);
    std::string text(buffer.data(), end);
    if (const std::size_t point = text.find('.'); point != std::string::npos)
        text.replace(point, 1, sign);
    return text;
}
