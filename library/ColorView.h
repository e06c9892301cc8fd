#pragma once

#include "library/ColorStore.h"

#include <string>
#include <string_view>

// A color where it is kept, with the group that it belongs to.
struct ColorView {
    const StoredColor& color;
    const std::string& groupKey;

    [[nodiscard]] std::string Key() const;
    [[nodiscard]] bool KeyBeginsWith(std::string_view start) const;
};
