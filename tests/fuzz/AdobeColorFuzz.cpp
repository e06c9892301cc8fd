#include "tests/fuzz/PaletteFuzz.h"

#include <cstdint>

// Any bytes: most of what the fuzzer keeps begins as an Adobe color file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzPalette(std::string(data, data + size), PaletteFormat::AdobeColor);
    return 0;
}
