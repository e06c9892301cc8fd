#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// UTF-16 in files; source: RFC 2781.
enum class Utf16Order { BigEndian, LittleEndian };

// To UTF-8; a surrogate alone and a byte that is left over become U+FFFD.
[[nodiscard]] std::string Utf8OfUtf16(std::string_view bytes, Utf16Order order);

// A name as Adobe's files keep it: big-endian, up to its first zero or the end.
void SetNameOfUtf16(std::string& name, std::string_view bytes);

// Big-endian and without a zero at its end.
[[nodiscard]] std::string Utf16OfUtf8(std::string_view text);
