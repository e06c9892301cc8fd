#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// How much a message box can show: lines, and characters before a line is wrapped.
struct MessageRoom {
    std::size_t lines;
    std::size_t lineLength;
};

// The text as it is when it has room; else its first lines, cut to their length, and "..." as the
// last one: a box that outgrows the screen hides its buttons.  UTF-8.
[[nodiscard]] std::string FittedMessage(std::string_view text, const MessageRoom& room);
