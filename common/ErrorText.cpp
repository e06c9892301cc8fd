#include "common/ErrorText.h"

#include "common/Text.h"

#include <algorithm>

namespace {

constexpr std::size_t kLongestQuote = 40; // characters

bool IsPlace(std::string_view text, std::size_t place) {
    return text[place] == '%' && place + 1 < text.size() && text[place + 1] >= '1' &&
           text[place + 1] <= '9';
}

} // namespace

std::string WithArguments(std::string_view text, const std::vector<std::string>& arguments) {
    std::string filled;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (!IsPlace(text, place)) {
            filled += text[place];
            continue;
        }
        const auto argument = static_cast<std::size_t>(text[++place] - '1');
        if (argument < arguments.size())
            filled += arguments[argument];
    }
    return filled;
}

std::string Quoted(std::string_view input) {
    std::string quoted = CutText(input, kLongestQuote);
    std::ranges::replace_if(
        quoted, [](char byte) { return byte >= 0 && byte < ' '; }, ' ');
    return quoted;
}
