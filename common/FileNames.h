#pragma once

#include <string>

// The characters after the last "\"; the whole text when it holds none.
[[nodiscard]] inline std::string FileNamePart(const std::string& path) {
    return path.substr(path.rfind('\\') + 1); // npos + 1 is 0
}

// The characters up to and including the last "\"; empty when the text holds none.
[[nodiscard]] inline std::string FilePathPart(const std::string& path) {
    return path.substr(0, path.rfind('\\') + 1);
}
