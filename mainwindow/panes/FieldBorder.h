#pragma once

#include <cstdint>
#include <windows.h>

// The border of a field: that of swatches, or the color of texts where contrast matters most.
[[nodiscard]] COLORREF FieldBorderColor(bool isHighContrast) noexcept;

// As Windows is set now (SPI_GETHIGHCONTRAST).
[[nodiscard]] COLORREF FieldBorderColor() noexcept;

// As the pixels of pictures have it: 0x00RRGGBB.
[[nodiscard]] std::uint32_t PixelOf(COLORREF color) noexcept;
