#include "library/DecodedLines.h"

#include "common/Text.h"
#include "library/FindByte.h"

#include <algorithm>

namespace {

constexpr std::size_t kPieceSize = 1U << 16U; // stays in the processor's cache

} // namespace

std::optional<std::string_view> DecodedLines::Next() {
    if (start_ >= text_.size())
        DecodePiece();
    if (start_ >= text_.size())
        return {};
    const std::string_view text = text_;
    const std::size_t end = FindEither(text, '\r', '\n', start_);
    const std::string_view line = text.substr(start_, end - start_);
    start_ = end + (text.substr(end, 2) == kLineBreak ? 2 : 1);
    ++number_;
    return line;
}

// A piece ends behind a line feed, which is never the second byte of a character.
void DecodedLines::DecodePiece() {
    const std::size_t lineFeed = bytes_.find('\n', std::min(kPieceSize, bytes_.size()));
    const std::size_t size = lineFeed == std::string_view::npos ? bytes_.size() : lineFeed + 1;
    text_ = codePage_.Decode(bytes_.substr(0, size));
    bytes_.remove_prefix(size);
    start_ = 0;
}
