#pragma once

#include "common/ports/AnsiCodePage.h"

#include <optional>
#include <string>
#include <string_view>

// The lines of a file's content one by one, decoded, without their ends (CR LF, LF or CR).  A last
// line without an end counts, an empty one behind the last end does not.
//
// The content is decoded piece by piece, so that it never exists twice.
class DecodedLines {
public:
    // bytes: must live as long as this.
    DecodedLines(std::string_view bytes, const AnsiCodePage& codePage)
        : bytes_(bytes), codePage_(codePage) {}

    // Valid until the next call; nothing after the last line.
    [[nodiscard]] std::optional<std::string_view> Next();

    // Of the line that was given last, from 1.
    [[nodiscard]] std::size_t Number() const noexcept { return number_; }

private:
    void DecodePiece();

    std::string_view bytes_; // not decoded yet
    const AnsiCodePage& codePage_;
    std::string text_;
    std::size_t start_ = 0; // of the next line in the text
    std::size_t number_ = 0;
};
