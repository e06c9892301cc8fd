#include "library/ContentFingerprint.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>

namespace {

constexpr std::uint64_t kFactor1 = 0x87C37B91114253D5;
constexpr std::uint64_t kFactor2 = 0x4CF5AD432745937F;
constexpr std::size_t kWordSize = sizeof(std::uint64_t);
constexpr std::size_t kBlockSize = 2 * kWordSize;

std::uint64_t WordAt(std::string_view content, std::size_t place) noexcept {
    std::uint64_t word = 0;
    std::memcpy(&word, content.data() + place, kWordSize);
    return word;
}

// Bytes that are not there count as 0.
std::uint64_t LastWordAt(std::string_view content, std::size_t place) noexcept {
    std::uint64_t word = 0;
    if (place < content.size())
        std::memcpy(&word, content.data() + place, std::min(kWordSize, content.size() - place));
    return word;
}

std::uint64_t Mixed1(std::uint64_t word) noexcept {
    return std::rotl(word * kFactor1, 31) * kFactor2;
}

std::uint64_t Mixed2(std::uint64_t word) noexcept {
    return std::rotl(word * kFactor2, 33) * kFactor1;
}

// Every bit of the result depends on every bit of the word.
std::uint64_t Spread(std::uint64_t word) noexcept {
    word = (word ^ (word >> 33U)) * 0xFF51AFD7ED558CCD;
    word = (word ^ (word >> 33U)) * 0xC4CEB9FE1A85EC53;
    return word ^ (word >> 33U);
}

} // namespace

ContentFingerprint ContentFingerprint::Of(std::string_view content) noexcept {
    std::uint64_t lower = 0;
    std::uint64_t upper = 0;
    std::size_t place = 0;
    for (; content.size() - place >= kBlockSize; place += kBlockSize) {
        lower ^= Mixed1(WordAt(content, place));
        lower = (std::rotl(lower, 27) + upper) * 5 + 0x52DCE729;
        upper ^= Mixed2(WordAt(content, place + kWordSize));
        upper = (std::rotl(upper, 31) + lower) * 5 + 0x38495AB5;
    }
    upper ^= Mixed2(LastWordAt(content, place + kWordSize)) ^ content.size();
    lower ^= Mixed1(LastWordAt(content, place)) ^ content.size();
    lower += upper;
    upper += lower;
    lower = Spread(lower);
    upper = Spread(upper);
    lower += upper;
    upper += lower;
    return {content.size(), lower, upper};
}
