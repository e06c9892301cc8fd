#pragma once

#include <string>

// The order in which the platform's list control sorts texts; letter case is ignored.
class TextCollation {
public:
    virtual ~TextCollation() = default;

    // Bytes that compare as the texts do: a text that is sorted among many is looked at once.
    [[nodiscard]] virtual std::string SortKey(const std::string& text) const = 0;

    // The text with small letters in place of all capital ones, those with accents too.
    [[nodiscard]] virtual std::string LowerCase(const std::string& text) const = 0;
};
