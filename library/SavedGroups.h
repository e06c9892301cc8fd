#pragma once

#include "library/ColorTable.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// The groups of a file by their keys as saved.
class SavedGroups {
public:
    // The first group with a key keeps it, as the first match in a list would.
    void Add(std::string_view key, ColorTable::GroupNumber number);

    [[nodiscard]] std::optional<ColorTable::GroupNumber> Find(std::string_view key) const;

private:
    struct Saved {
        std::string key;
        ColorTable::GroupNumber number = 0;
    };
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const noexcept {
            return std::hash<std::string_view>()(text);
        }
    };

    std::vector<Saved> groups_;
    std::unordered_map<std::string, std::size_t, TextHash, std::equal_to<>> places_;
};
