#pragma once

#include <string>

// Numbers as a language writes them for its readers.

// 1234567 with the sign between groups of three digits: "1.234.567".  number: not negative.
[[nodiscard]] std::string WithThousands(int number, const std::string& sign);

// The number, rounded to so many decimals, with the sign before them: "3,40".
[[nodiscard]] std::string WithDecimals(double number, int decimals, const std::string& sign);
