#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

// Where a byte stands in a text, found eight bytes at a time.
//
// What is looked for in a record is near: a call of the C library's search takes longer than the
// search, and some of these libraries search byte by byte.
namespace ByteWords {

constexpr std::size_t kSize = sizeof(std::uint64_t);

// The highest bit of the first byte that is the one looked for; those behind it may be anything.
[[nodiscard]] constexpr std::uint64_t FirstOf(char byte, std::uint64_t word) noexcept {
    const std::uint64_t zeroWhereFound =
        word ^ (static_cast<unsigned char>(byte) * 0x0101010101010101U);
    return (zeroWhereFound - 0x0101010101010101U) & ~zeroWhereFound & 0x8080808080808080U;
}

} // namespace ByteWords

// The first place of one of two bytes, from a place in the text on; its size: there is none.
[[nodiscard]] inline std::size_t FindEither(std::string_view text, char one, char other,
                                            std::size_t place = 0) noexcept {
    static_assert(std::endian::native == std::endian::little);
    for (; text.size() - place >= ByteWords::kSize; place += ByteWords::kSize) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + place, ByteWords::kSize);
        const std::uint64_t found = ByteWords::FirstOf(one, word) | ByteWords::FirstOf(other, word);
        if (found != 0)
            return place + static_cast<std::size_t>(std::countr_zero(found)) / 8;
    }
    while (place < text.size() && text[place] != one && text[place] != other)
        ++place;
    return place;
}

[[nodiscard]] inline std::size_t FindByte(std::string_view text, char byte,
                                          std::size_t place = 0) noexcept {
    return FindEither(text, byte, byte, place);
}
