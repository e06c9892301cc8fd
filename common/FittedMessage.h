#pragma once

#include <functional>
#include <string>
#include <string_view>

// What a text takes on the screen, or what a box has for it, in pixels.
struct MessageSize {
    int width;
    int height;
};

// Measures a text as the box will wrap it; a word that is longer than a line makes it wider.
using MessageMeasure = std::function<MessageSize(const std::string& text)>;

// The text as it is when it has room: a box that outgrows the screen hides its buttons.  Else words
// that are too wide go on in the next line, and of too many lines the first ones stay, with "..."
// as the last.  UTF-8.
[[nodiscard]] std::string FittedMessage(std::string_view text, const MessageSize& room,
                                        const MessageMeasure& measure);
