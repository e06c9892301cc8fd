#pragma once

#include "palettes/PaletteLosses.h"

#include <string>

// A palette as its file will be.
struct PaletteWriting {
    std::string bytes;
    PaletteLosses losses;
};
