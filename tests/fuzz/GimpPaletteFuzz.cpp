#include "tests/fuzz/PaletteFuzz.h"

#include <cstdint>

// Any lines behind the first one of a GIMP palette.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzPalette("GIMP Palette\n" + std::string(data, data + size), PaletteFormat::Gimp);
    return 0;
}
