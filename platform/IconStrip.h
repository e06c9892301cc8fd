#pragma once

#include "platform/Handles.h"

#include <string>
#include <vector>

// The named icons beside each other in one bitmap with an alpha channel, copied from the
// executable's resources as they are.  An image list takes such a strip at once; to take icons one
// by one costs it a good part of the program's start.  None when the executable does not hold each
// icon in just this size (pixels) with 32 bits a pixel: it takes LoadImageW to make one fit.
[[nodiscard]] BitmapHandle LoadIconStrip(const std::vector<std::string>& names, int size);
