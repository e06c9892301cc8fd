#pragma once

#include "common/ColorRecord.h"

#include <cstddef>
#include <string>
#include <vector>

// What the tip of a group or a library shows.
struct NodeTip {
    static constexpr std::size_t kMostColors = 12;

    std::string text;                    // name and number of colors, UTF-8
    std::vector<ColorValueArray> colors; // the first ones in their order, at most kMostColors
    int more = 0;                        // colors that are not among them

    bool operator==(const NodeTip&) const = default;
};

// Where the tips of the tree come from.
class NodeTips {
public:
    virtual ~NodeTips() = default;

    // key: of a group or library; an empty text: there is none with it.
    [[nodiscard]] virtual NodeTip TipOf(const std::string& key) const = 0;
};
