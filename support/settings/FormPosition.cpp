#include "support/settings/FormPosition.h"

#include "common/Numbers.h"
#include "common/RuntimeError.h"

namespace {

int Field(std::string_view text, std::string_view name) {
    const std::size_t start = text.find(name);
    if (start == std::string_view::npos)
        return 0;
    try {
        return RoundToInt32(LeadingNumber(text.substr(start + name.size())));
    } catch (const RuntimeError&) {
        return 0;
    }
}

} // namespace

std::string FormatFormPosition(const TwipsRect& bounds, WindowState state) {
    return "L=" + SingleToText(bounds.left) + ";T=" + SingleToText(bounds.top) +
           ";W=" + SingleToText(bounds.width) + ";H=" + SingleToText(bounds.height) +
           ";S=" + std::to_string(static_cast<int>(state)) + ";";
}

FormPosition ParseFormPosition(std::string_view text) {
    return {{static_cast<float>(Field(text, "L=")), static_cast<float>(Field(text, "T=")),
             static_cast<float>(Field(text, "W=")), static_cast<float>(Field(text, "H="))},
            Field(text, "S=")};
}
