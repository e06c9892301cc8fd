#pragma once

#include "common/ColorRecord.h"

#include <optional>
#include <string>
#include <string_view>

// One color as plain text: "E#name=group key:second name,value 1, ... ,value 9", without a line
// break at its end.
namespace ClipboardLine {

struct PastedColor {
    std::string name;
    ColorValueArray values{};
};

[[nodiscard]] std::string Format(const ColorRecord& color);

// True for a text that begins like a color.
[[nodiscard]] bool IsColor(std::string_view text);

// Nothing when the text has not exactly ten fields behind its colon.  The group key and the second
// name are not used.  Throws RuntimeError for a value that is no 16-bit number.
[[nodiscard]] std::optional<PastedColor> Parse(std::string_view text);

// True when a paste makes a color of this name and these values of the text.
[[nodiscard]] bool GivesBack(std::string_view text, const ColorRecord& color);

} // namespace ClipboardLine
