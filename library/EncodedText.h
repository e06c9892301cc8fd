#pragma once

#include "common/ports/AnsiCodePage.h"

#include <string>

// A text on its way into a file: what is added in UTF-8 is encoded piece by piece, so that the
// whole of it never exists twice.
class EncodedText {
public:
    explicit EncodedText(const AnsiCodePage& codePage) : codePage_(codePage) {}

    // Whole lines are added to it, and EndLine is called behind each.
    [[nodiscard]] std::string& Line() noexcept { return piece_; }
    void EndLine();

    // All that was added, encoded; nothing may be added afterwards.
    [[nodiscard]] AnsiCodePage::Encoded Take();

private:
    void EncodePiece();

    const AnsiCodePage& codePage_;
    std::string piece_;
    AnsiCodePage::Encoded encoded_;
};
