#pragma once

#include "common/ColorRecord.h"
#include "library/ColorQuery.h"

#include <string>
#include <string_view>
#include <utility>

// Tells colors that are what a query asks for.
class ColorMatch {
public:
    explicit ColorMatch(ColorQuery query) : query_(std::move(query)) {}

    // Nothing is asked for.
    [[nodiscard]] bool IsForNothing() const noexcept { return query_.IsNothing(); }

    // Red, green and blue are those of the query; no color has those of a query without a color.
    [[nodiscard]] bool HasColor(const ColorValueArray& values) const noexcept;

    // All words of the query, of which there are some, are parts of the name.
    [[nodiscard]] bool HasWords(std::string_view name);

private:
    ColorQuery query_;
    std::string folded_; // name that is looked at
};
