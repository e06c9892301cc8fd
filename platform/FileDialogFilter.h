#pragma once

#include <string>
#include <string_view>

// The platform's form of a filter "description|pattern|description|pattern": each part followed by
// a NUL and one more NUL at the end.  A "|" at the end adds nothing; no filter gives an empty text.
[[nodiscard]] std::wstring PlatformFilter(std::string_view filter);

// The ending, without its dot, of the filter's first pattern ("txt" for "...|*.txt|..."); empty
// when that is no plain "*.ending".
[[nodiscard]] std::wstring DefaultExtension(std::string_view filter);
