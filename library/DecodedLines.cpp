#include "library/DecodedLines.h"

#include <algorithm>

namespace {

constexpr std::size_t kPieceSize = 1U << 16U; // stays in the processor's cache

} // namespace

std::size_t DecodedLines::Finder::From(std::size_t start, std::string_view text) {
    if (!searched_ || place_ < start) {
        place_ = std::min(text.find(character_, start), text.size());
        searched_ = true;
    }
    return place_;
}

std::optional<std::string_view> DecodedLines::Next() {
    if (start_ >= text_.size())
        DecodePiece();
    if (start_ >= text_.size())
        return {};
    const std::size_t carriageReturn = carriageReturn_.From(start_, text_);
    const std::size_t lineFeed = lineFeed_.From(start_, text_);
    const std::size_t end = std::min(carriageReturn, lineFeed);
    const std::string_view line = std::string_view(text_).substr(start_, end - start_);
    start_ = carriageReturn + 1 == lineFeed ? lineFeed + 1 : end + 1;
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
    carriageReturn_.Forget();
    lineFeed_.Forget();
}
