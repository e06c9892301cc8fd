#pragma once

#include "common/ColorSpaces.h"

// How different two colors look, as CIEDE2000 has it, with all weights 1: 0 for the same color,
// about 1 where a trained eye begins to see a difference, 100 between black and white.  Symmetric.
//
// Sources: CIE 142-2001; G. Sharma, W. Wu, E. N. Dalal, The CIEDE2000 Color-Difference Formula:
// Implementation Notes, Supplementary Test Data, and Mathematical Observations, Color Research and
// Application 30 (2005), whose names the terms have.
[[nodiscard]] double ColorDifference(const LabColor& first, const LabColor& second) noexcept;

// The least difference that two colors of these lightnesses can have, whatever their hues are.  It
// grows with the distance of the two.
[[nodiscard]] double LeastColorDifference(double firstLightness, double secondLightness) noexcept;
