#pragma once

#include "common/ports/AnsiCodePage.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// A code page in which each byte is a character, as tables: a whole library file is decoded or
// encoded in one pass.
class SingleByteCodePage : public AnsiCodePage {
public:
    // characterOf: the UTF-8 character of a byte, of the basic plane (three bytes at most); U+FFFD
    // for a byte without a meaning.  isStoredAs: whether encoding the character of this byte gives
    // this byte again.
    SingleByteCodePage(const std::function<std::string(unsigned char)>& characterOf,
                       const std::function<bool(unsigned char)>& isStoredAs);

    [[nodiscard]] std::string Decode(std::string_view bytes) const override;

    // What is broken in the text counts as U+FFFD.
    [[nodiscard]] AnsiCodePage::Encoded Encode(std::string_view utf8) const override;

private:
    struct Character {
        std::array<char, 4> bytes{};
        std::uint32_t length = 0; // 1..3
    };

    std::array<Character, 256> characters_{};
    bool isAsciiPlain_ = true;         // ASCII stands for itself
    std::vector<std::uint16_t> bytes_; // by code point of the basic plane
};
