#pragma once

#include <string>
#include <string_view>

// The edge between the portable half (UTF-8) and the platform (UTF-16).  Neither direction fails: a
// broken sequence and a lone surrogate become U+FFFD, embedded NULs are kept.  Both throw
// RuntimeError Overflow for a text that the platform cannot count.

// MultiByteToWideChar.
[[nodiscard]] std::wstring ToUtf16(std::string_view utf8);

// WideCharToMultiByte.
[[nodiscard]] std::string ToUtf8(std::wstring_view utf16);
