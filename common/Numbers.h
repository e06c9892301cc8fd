#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Conversions between numbers and their texts.  Decimal point, no thousands separators, independent
// of the user's regional settings.

// The number that the text begins with (leading blanks allowed), 0 when it begins with none.
[[nodiscard]] double LeadingNumber(std::string_view text) noexcept;

// The nearest whole number, an exact half to the even neighbour.
[[nodiscard]] double RoundHalfToEven(double number) noexcept;

// As RoundHalfToEven, for results that must fit.  Throws RuntimeError Overflow.
[[nodiscard]] std::int16_t RoundToInt16(double number);
[[nodiscard]] std::int32_t RoundToInt32(double number);

// The whole text as a number (blanks around it allowed); whole numbers are rounded as above. Throws
// RuntimeError TypeMismatch when it is not a number, Overflow when it does not fit.  A number that
// is too near to 0 for the format is 0.
[[nodiscard]] double TextToDouble(std::string_view text);
[[nodiscard]] std::int16_t TextToInt16(std::string_view text);
[[nodiscard]] std::int32_t TextToInt32(std::string_view text);

// "True" and "False" in any letter case, or a number (0 is false).  Throws RuntimeError
// TypeMismatch.
[[nodiscard]] bool TextToBoolean(std::string_view text);

// "True" or "False".
[[nodiscard]] std::string BooleanToText(bool value);

// Shortest decimal text that gives the same single-precision number back.
[[nodiscard]] std::string SingleToText(float value);
