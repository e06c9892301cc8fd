#pragma once

#include "library/ColorLibrary.h"

#include <string>
#include <vector>

// What a library holds, one line each: "0D Materials" and "0DG1 Metals" in the order of the tree,
// then the colors in the order of the table, "0DG1E2 in 0DG1: Gold (Aurum) 255 206 77 20 ...".  A
// color that was not read from a file says so.
[[nodiscard]] inline std::vector<std::string> OutlineOf(const ColorLibrary& library) {
    std::vector<std::string> lines;
    for (const std::string& mainKey : library.Tree().MainNodes()) {
        lines.push_back(mainKey + " " + library.Tree().At(mainKey).text);
        for (const std::string& group : library.GetGroupInMainnode(mainKey))
            lines.push_back(group + " " + library.Tree().At(group).text);
    }
    for (int index = 1; index <= library.Colors().UpperBound(); ++index) {
        const ColorRecord color = library.Colors().At(index);
        std::string line =
            color.key + " in " + color.groupKey + ": " + color.name + " (" + color.altName + ")";
        for (const std::int16_t value : color.values)
            line += " " + std::to_string(value);
        lines.push_back(line + (color.isNew ? " new" : ""));
    }
    return lines;
}
