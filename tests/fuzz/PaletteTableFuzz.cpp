#include "tests/fuzz/PaletteFuzz.h"

#include <cstdint>

// Any bytes: nearly all of them are a text, some are a table of colors.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzPalette(std::string(data, data + size), PaletteFormat::Table);
    return 0;
}
