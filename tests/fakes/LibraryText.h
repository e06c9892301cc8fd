#pragma once

#include <string>

// Line of a library file: a color of that name in the group, whose red value reads as given and
// whose other eight values are 0.
[[nodiscard]] inline std::string ColorLine(const std::string& group, const std::string& name,
                                           const std::string& red) {
    std::string line = "\"E#" + name + "=" + group + ":" + name + "\xF7" + red;
    for (int value = 2; value <= 9; ++value)
        line += "\xF7"
                "0";
    return line + "\"\r\n";
}
