#pragma once

#include "common/Windows1252.h"
#include "common/ports/AnsiCodePage.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

// A single-byte code page: ASCII, and a table for the upper half.
class FakeCodePage : public AnsiCodePage {
public:
    // Windows-1252; the five bytes that are control characters there have no meaning here.
    static FakeCodePage Western() {
        FakeCodePage page;
        for (std::uint32_t number = 0x80; number <= 0xFF; ++number) {
            const auto octet = static_cast<unsigned char>(number);
            const std::uint32_t character = Windows1252::CharacterOf(octet);
            if (character >= 0xA0)
                page.Add(octet, character);
        }
        return page;
    }

    // Cyrillic (Windows-1251): the letters, and no division sign.
    static FakeCodePage Cyrillic() {
        FakeCodePage page;
        for (std::uint32_t octet = 0xC0; octet <= 0xFF; ++octet)
            page.Add(static_cast<unsigned char>(octet), octet - 0xC0 + 0x410);
        return page;
    }

    std::string Decode(std::string_view bytes) const override {
        const auto isAscii = [](char character) {
            return static_cast<unsigned char>(character) < 0x80;
        };
        std::string text;
        for (auto rest = bytes.begin(); rest != bytes.end();) {
            const auto upper = std::find_if_not(rest, bytes.end(), isAscii);
            text.append(rest, upper);
            rest = upper;
            if (rest != bytes.end())
                text += Upper(static_cast<unsigned char>(*rest++));
        }
        return text;
    }

    Encoded Encode(std::string_view utf8) const override {
        Encoded encoded;
        while (!utf8.empty()) {
            const std::size_t length = LengthOf(utf8);
            const std::string character(utf8.substr(0, length));
            utf8.remove_prefix(length);
            const auto found = bytes_.find(character);
            if (length == 1)
                encoded.bytes += character;
            else if (found != bytes_.end())
                encoded.bytes += static_cast<char>(found->second);
            else
                Refuse(encoded, character);
        }
        return encoded;
    }

private:
    void Add(unsigned char octet, std::uint32_t codePoint) {
        characters_[octet] = codePoint;
        bytes_[Utf8(codePoint)] = octet;
    }
    // A byte of the upper half, as text.
    std::string Upper(unsigned char octet) const {
        const auto found = characters_.find(octet);
        return Utf8(found == characters_.end() ? 0xFFFD : found->second);
    }
    static void Refuse(Encoded& encoded, const std::string& character) {
        encoded.bytes += '?';
        if (encoded.unstored.find(character) == std::string::npos)
            encoded.unstored += character;
    }
    static std::size_t LengthOf(std::string_view utf8) {
        std::size_t length = 1;
        while (length < utf8.size() && (static_cast<unsigned char>(utf8[length]) & 0xC0) == 0x80)
            ++length;
        return length;
    }
    static std::string Utf8(std::uint32_t codePoint) {
        const auto tail = [](std::uint32_t bits) {
            return static_cast<char>(0x80 | (bits & 0x3F));
        };
        if (codePoint < 0x80)
            return {static_cast<char>(codePoint)};
        if (codePoint < 0x800)
            return {static_cast<char>(0xC0 | (codePoint >> 6)), tail(codePoint)};
        return {static_cast<char>(0xE0 | (codePoint >> 12)), tail(codePoint >> 6), tail(codePoint)};
    }

    std::map<unsigned char, std::uint32_t> characters_;
    std::map<std::string, unsigned char> bytes_;
};
