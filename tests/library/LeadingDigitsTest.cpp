// Rules: Library files
#include "library/LeadingDigits.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace {

// Digit by digit, as it is said.
LeadingDigits Counted(std::string_view text) {
    LeadingDigits digits;
    while (digits.count < std::min(text.size(), LeadingDigits::kMost) &&
           text[digits.count] >= '0' && text[digits.count] <= '9')
        digits.number = digits.number * 10 + static_cast<unsigned>(text[digits.count++] - '0');
    return digits;
}

void ExpectAsCounted(const std::string& text) {
    const LeadingDigits expected = Counted(text);
    const LeadingDigits digits = LeadingDigits::Of(text);
    ASSERT_EQ(digits.count, expected.count) << text;
    ASSERT_EQ(digits.number, expected.number) << text;
}

TEST(LeadingDigits, EveryNumberOfFourDigitsIsRead) {
    for (int number = 0; number < 10000; ++number)
        for (const char* end : {"", "\xC3\xB7", "5", "x"})
            ASSERT_NO_FATAL_FAILURE(ExpectAsCounted(std::to_string(number) + end));
}

TEST(LeadingDigits, AnyByteThatIsNoDigitEndsThem) {
    for (int byte = 0; byte < 256; ++byte)
        for (const char* start : {"", "1", "12", "007"})
            for (const char* end : {"", "9", "\xFF\xFF\xFF"})
                ASSERT_NO_FATAL_FAILURE(
                    ExpectAsCounted(start + std::string(1, static_cast<char>(byte)) + end));
}

} // namespace
