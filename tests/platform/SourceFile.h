#pragma once

#include "tests/fakes/SourceFolder.h"

#include <algorithm>
#include <string>

// Full path of a file of the source tree, as a Windows program sees it.
[[nodiscard]] inline std::string SourceFile(const std::string& path) {
    std::string full = SourceFolder() + "/" + path;
    std::replace(full.begin(), full.end(), '/', '\\');
    return full.front() == '\\' ? "Z:" + full : full; // of a cross build: the root as Wine shows it
}
