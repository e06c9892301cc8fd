#pragma once

#include "standin/model/MaterialValues.h"

// The levels on which a face can get its color, strongest first.
enum class ColorLevel { Component, Face, Feature, Body, Part, None };

// What each level carries for one face.
struct ColorLevels {
    MaterialOverride component;
    MaterialOverride face;
    MaterialOverride feature;
    MaterialOverride body;
    MaterialOverride part;
};

struct DisplayColor {
    MaterialValues values{};
    ColorLevel level = ColorLevel::None; // the level that decided

    bool operator==(const DisplayColor&) const = default;
};

// What a face shows when no level carries a color: a plain grey.
inline constexpr MaterialValues kUnsetMaterial{0.75, 0.75, 0.75, 0.5, 1, 0.3, 0.2, 0, 0};

// The color that is seen: component over face over feature over body over part.
[[nodiscard]] DisplayColor ResolveDisplayColor(const ColorLevels& levels) noexcept;

// "component", "face", ...; "nothing" for None.
[[nodiscard]] const char* ColorLevelName(ColorLevel level) noexcept;
