#pragma once

#include "library/ColorLibrary.h"

#include <string>
#include <string_view>
#include <vector>

// What of a library would not come back from its file.
struct SaveLosses {
    std::string characters;         // that the code page cannot hold
    std::string libraryName;        // when it would be cut
    std::vector<std::string> names; // of groups and colors with which it could not be read whole

    [[nodiscard]] bool IsNothing() const noexcept {
        return characters.empty() && libraryName.empty() && names.empty();
    }
};

// The names of a library that would not come back.  separator: of the fields of a color.
[[nodiscard]] SaveLosses NamesLostBySaving(const ColorLibrary& library, const std::string& mainKey,
                                           std::string_view separator);
