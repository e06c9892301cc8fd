#pragma once

#include "common/ports/InfoTexts.h"
#include "library/ColorLibrary.h"
#include "mainwindow/NodeTip.h"

// Tips of the tree from the color library: the colors of a group, and of a library those of all
// its groups.
class LibraryTips : public NodeTips {
public:
    LibraryTips(const ColorLibrary& library, InfoTexts& texts) : library_(library), texts_(texts) {}

    [[nodiscard]] NodeTip TipOf(const std::string& key) const override;

private:
    void AddColorsOf(const std::string& groupKey, NodeTip& tip) const;
    [[nodiscard]] std::string TextOf(const std::string& name, const NodeTip& tip) const;

    const ColorLibrary& library_;
    InfoTexts& texts_;
};
