#include "solidworks/LevelColors.h"

#include <algorithm>

std::optional<std::size_t> LevelColors::Seen() const {
    const auto seen = std::ranges::find_if(
        levels, [](const LevelColor& level) { return level.values.has_value(); });
    if (seen == levels.end())
        return {};
    return static_cast<std::size_t>(seen - levels.begin());
}

std::vector<LevelKind> LevelColors::Covered() const {
    std::vector<LevelKind> covered;
    for (std::size_t index = Seen().value_or(levels.size()) + 1; index < levels.size(); ++index)
        if (levels[index].values)
            covered.push_back(levels[index].kind);
    return covered;
}

// A face has nothing in it, and a component covers all that it has.
bool LevelColors::MayShowOthersInside() const {
    const std::optional<std::size_t> seen = Seen();
    const bool isCovered = seen && levels[*seen].kind == LevelKind::Component;
    return !levels.empty() && !isCovered &&
           std::ranges::find(levels, LevelKind::Face, &LevelColor::kind) == levels.end();
}

bool CanBeCleared(const LevelColor& level) noexcept {
    const bool hasWay = level.kind == LevelKind::Component || level.kind == LevelKind::Face ||
                        level.kind == LevelKind::Feature;
    return hasWay && level.values.has_value();
}
