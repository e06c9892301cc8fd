#pragma once

#include "tests/fakes/SourceFolder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

// The bytes of a library file of tests/golden.  Throws std::runtime_error when there is none.
[[nodiscard]] inline std::string GoldenFile(const std::string& name) {
    std::ifstream file(SourceFolder() + "/tests/golden/" + name, std::ios::binary);
    if (!file)
        throw std::runtime_error("There is no golden file " + name);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
