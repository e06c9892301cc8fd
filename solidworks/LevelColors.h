#pragma once

#include "common/ColorRecord.h"

#include <cstddef>
#include <optional>
#include <vector>

// On which level of SolidWorks a color is kept.  The strongest comes first: what is nearer to the
// eye covers the rest.  An assembly document is a level of its own kind.
enum class LevelKind { Component, Face, Feature, Body, Part, Assembly };

struct LevelColor {
    LevelKind kind = LevelKind::Part;
    std::optional<ColorValueArray> values; // none: the level has no color

    bool operator==(const LevelColor&) const = default;
};

// The levels of what is selected, from the strongest down.
struct LevelColors {
    std::vector<LevelColor> levels;
    // The component gave no model, as a lightweight one: there are no levels below it.
    bool isModelMissing = false;

    // Index of the level that is seen, the first that has a color; nothing when none has.
    [[nodiscard]] std::optional<std::size_t> Seen() const;
    // Those with colors that the seen one covers.
    [[nodiscard]] std::vector<LevelKind> Covered() const;
    // What is selected may have more in it than was asked, with colors of its own that are seen
    // there instead: faces and features, or components.
    [[nodiscard]] bool MayShowOthersInside() const;

    bool operator==(const LevelColors&) const = default;
};

// Whether SolidWorks has a way to take this level's color off.
[[nodiscard]] bool CanBeCleared(const LevelColor& level) noexcept;
