#pragma once

#include "common/ColorNumber.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What a text that was typed asks for.
struct ColorQuery {
    std::vector<std::string> words;    // case folded; all of them are parts of a name that is found
    std::optional<RedGreenBlue> color; // that the text names; nothing: it names none

    [[nodiscard]] bool IsNothing() const noexcept { return words.empty() && !color; }
};

// The words between blanks; a color when the whole text is "#RRGGBB", or three whole numbers of 0
// to 255 between blanks, commas or semicolons.  text: UTF-8.
[[nodiscard]] ColorQuery ParseColorQuery(std::string_view text);
