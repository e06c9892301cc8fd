#include "tests/fuzz/PaletteFuzz.h"

#include <cstdint>

// Any bytes behind the first four of a swatch exchange file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzPalette("ASEF" + std::string(data, data + size), PaletteFormat::SwatchExchange);
    return 0;
}
