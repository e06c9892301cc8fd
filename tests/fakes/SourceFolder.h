#pragma once

#include <cstdlib>
#include <string>

// The folder of the sources, with forward slashes or as it is given: the one that the tests were
// built from, or TNT_SOURCES where the built tests were taken elsewhere.
[[nodiscard]] inline std::string SourceFolder() {
    const char* elsewhere = std::getenv("TNT_SOURCES");
    return elsewhere != nullptr ? elsewhere : TNT_SOURCE_DIR;
}
