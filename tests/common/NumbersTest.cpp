// Rules: Library files
#include "common/Numbers.h"

#include "common/RuntimeError.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>

namespace {

int ErrorNumberOf(const std::function<void()>& action) {
    try {
        action();
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number();
    }
}

TEST(LeadingNumber, StopsAtTheFirstCharacterThatIsNotPartOfANumber) {
    EXPECT_EQ(LeadingNumber("100x;"), 100);
    EXPECT_EQ(LeadingNumber("  -12.5;T=3"), -12.5);
    EXPECT_EQ(LeadingNumber("9.0.1"), 9.0);
    EXPECT_EQ(LeadingNumber("+7"), 7);
}

TEST(LeadingNumber, IsZeroWithoutANumber) {
    for (const char* text : {"", "   ", "x1", "-", "+", "inf", "nan", "+-3", "--3"})
        EXPECT_EQ(LeadingNumber(text), 0) << text;
}

TEST(RoundHalfToEven, TakesAnExactHalfToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfToEven(0.5), 0);
    EXPECT_EQ(RoundHalfToEven(1.5), 2);
    EXPECT_EQ(RoundHalfToEven(2.5), 2);
    EXPECT_EQ(RoundHalfToEven(127.5), 128);
    EXPECT_EQ(RoundHalfToEven(-0.5), 0);
    EXPECT_EQ(RoundHalfToEven(-1.5), -2);
    EXPECT_EQ(RoundHalfToEven(2.4999), 2);
    EXPECT_EQ(RoundHalfToEven(2.5001), 3);
}

TEST(TextToInt16, ConvertsAndRoundsTheWholeText) {
    EXPECT_EQ(TextToInt16("255"), 255);
    EXPECT_EQ(TextToInt16(" -32768 "), -32768);
    EXPECT_EQ(TextToInt16("1.5"), 2);
    EXPECT_EQ(TextToInt16("7\r\n"), 7);
    EXPECT_EQ(TextToInt16("-9999"), -9999);
    EXPECT_EQ(TextToInt16("0012"), 12);
    EXPECT_EQ(TextToInt16("00012"), 12);
    EXPECT_EQ(TextToInt16("-0"), 0);
    EXPECT_EQ(TextToInt16("1e2"), 100);
}

TEST(TextToInt16, RefusesWhatIsNoNumberOrDoesNotFit) {
    for (const char* text : {"", ".", "abc", "1 2", "12x", "1,5", "-", "--1"})
        EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(TextToInt16(text)); }),
                  ErrorNumber::TypeMismatch)
            << text;
    EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(TextToInt16("32768")); }),
              ErrorNumber::Overflow);
    EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(TextToInt32("1e99999")); }),
              ErrorNumber::Overflow);
}

TEST(TextToDouble, NumberTooNearToZeroIsZero) {
    for (const char* text : {"1e-400", "-1e-400", "+1E-400", "0.1e-99999999999",
                             "123456789012345678901e-420", ".001e-9223372036854775808"})
        EXPECT_EQ(TextToDouble(text), 0) << text;
    EXPECT_EQ(TextToDouble("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(TextToInt16("1e-400"), 0);
    EXPECT_EQ(LeadingNumber("1e-400;"), 0);
    EXPECT_FALSE(TextToBoolean("1e-400"));
}

TEST(TextToDouble, NumberBeyondTheFormatIsInfiniteAndFitsNoInteger) {
    for (const std::string& text :
         {std::string("1e400"), std::string("-1e+400"), std::string("0.001e99999999999"),
          std::string("1e9223372036854775807"), std::string("1e9223372036854775808"),
          std::string(400, '9'), "1" + std::string(400, '0') + "e-2"}) {
        EXPECT_TRUE(std::isinf(TextToDouble(text))) << text;
        EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(TextToInt32(text)); }),
                  ErrorNumber::Overflow)
            << text;
    }
    EXPECT_LT(TextToDouble("-1e400"), 0);
}

TEST(TextToBoolean, TakesTheWordsInAnyLetterCaseAndNumbers) {
    EXPECT_TRUE(TextToBoolean("True"));
    EXPECT_TRUE(TextToBoolean("TRUE"));
    EXPECT_TRUE(TextToBoolean("-1"));
    EXPECT_FALSE(TextToBoolean("false"));
    EXPECT_FALSE(TextToBoolean("0"));
    EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(TextToBoolean("yes")); }),
              ErrorNumber::TypeMismatch);
}

TEST(SingleToText, IsTheShortestDecimalTextWithoutExponent) {
    EXPECT_EQ(SingleToText(1200), "1200");
    EXPECT_EQ(SingleToText(-7.5F), "-7.5");
    EXPECT_EQ(SingleToText(100000000), "100000000");
}

} // namespace
