#pragma once

#include "common/SingleByteCodePage.h"

// Windows-1252, the Western code page, where there is no Windows to ask.  Source: the table
// CP1252.TXT of the Unicode Consortium; the five bytes that it leaves open are control characters,
// as Windows reads them.
namespace Windows1252 {

inline constexpr unsigned kNumber = 1252;

[[nodiscard]] char32_t CharacterOf(unsigned char byte) noexcept;

[[nodiscard]] SingleByteCodePage CodePage();

} // namespace Windows1252
