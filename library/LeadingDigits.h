#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

// The digits that a text begins with, at most four of them, and the number that they are.
//
// Library files are mostly numbers of one to three digits in no order: a loop that ends somewhere
// else each time costs more than all of its work, so four characters are taken at once.
struct LeadingDigits {
    std::uint32_t number = 0;
    std::size_t count = 0;

    static constexpr std::size_t kMost = 4;

    [[nodiscard]] static LeadingDigits Of(std::string_view text) noexcept {
        static_assert(std::endian::native == std::endian::little);
        std::uint32_t characters = 0; // the first one in the lowest bits; 0 behind the end
        if (text.size() >= kMost)
            std::memcpy(&characters, text.data(), kMost);
        else
            std::memcpy(&characters, text.data(), text.size());
        // A byte is 0 where it is a digit; bytes behind the first that is none may be anything.
        const std::uint32_t above9 = (characters + 0x06060606U) & 0xF0F0F0F0U;
        const std::uint32_t others = ((characters & 0xF0F0F0F0U) | (above9 >> 4U)) ^ 0x33333333U;
        const auto found = static_cast<std::size_t>(std::countr_zero(others)) / 8;
        if (found == 0)
            return {};
        const std::uint32_t digits = (characters << (8 * (kMost - found))) & 0x0F0F0F0FU;
        const std::uint32_t pairs = (digits * 10 + (digits >> 8U)) & 0x00FF00FFU;
        return {(pairs * 100 + (pairs >> 16U)) & 0xFFFFU, found};
    }
};
