// Rules: Library files
#include "library/FindByte.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace {

// Byte by byte, as it is said.
std::size_t Counted(std::string_view text, char one, char other, std::size_t place) {
    return std::min(text.find_first_of(std::string{one, other}, place), text.size());
}

void ExpectAsCounted(std::string_view text, char one, char other) {
    for (std::size_t place = 0; place <= text.size(); ++place) {
        ASSERT_EQ(FindEither(text, one, other, place), Counted(text, one, other, place)) << text;
        ASSERT_EQ(FindByte(text, one, place), Counted(text, one, one, place)) << text;
    }
}

TEST(FindByte, IsFoundAtEveryPlaceOfEveryLength) {
    for (std::size_t length = 0; length < 20; ++length)
        for (std::size_t at = 0; at < length; ++at) {
            std::string text(length, 'a');
            text[at] = '\n';
            ASSERT_NO_FATAL_FAILURE(ExpectAsCounted(text, '\n', '\r'));
            ASSERT_NO_FATAL_FAILURE(ExpectAsCounted(text, '\r', '\n'));
        }
}

TEST(FindByte, FirstOfSeveralIsFound) {
    ASSERT_NO_FATAL_FAILURE(ExpectAsCounted("=====:::::=====:::::", '=', ':'));
    ASSERT_NO_FATAL_FAILURE(ExpectAsCounted("a\r\nb\r\n\r\nccccccccc\n", '\r', '\n'));
}

// Bytes that differ from the one looked for in a single bit, and those beside it.
TEST(FindByte, NoOtherByteIsTakenForIt) {
    for (const char wanted : {'\0', '=', '\x7F', '\x80', '\xC3', '\xFF'})
        for (int byte = 0; byte < 256; ++byte) {
            std::string text(9, static_cast<char>(byte));
            ASSERT_NO_FATAL_FAILURE(ExpectAsCounted(text, wanted, wanted));
            text[5] = wanted;
            ASSERT_NO_FATAL_FAILURE(ExpectAsCounted(text, wanted, wanted));
        }
}

} // namespace
