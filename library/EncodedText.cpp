#include "library/EncodedText.h"

#include "common/Text.h"

#include <utility>

namespace {

constexpr std::size_t kPieceSize = 1U << 16U; // stays in the processor's cache

} // namespace

void EncodedText::EndLine() {
    if (piece_.size() >= kPieceSize)
        EncodePiece();
}

AnsiCodePage::Encoded EncodedText::Take() {
    EncodePiece();
    return std::move(encoded_);
}

void EncodedText::EncodePiece() {
    const AnsiCodePage::Encoded piece = codePage_.Encode(piece_);
    piece_.clear();
    encoded_.bytes += piece.bytes;
    for (const std::string& character : CharactersOf(piece.unstored))
        if (encoded_.unstored.find(character) == std::string::npos)
            encoded_.unstored += character;
}
