#pragma once

#include <string>

// The order in which the platform's list control sorts texts.
class TextCollation {
public:
    virtual ~TextCollation() = default;

    // Negative, 0 or positive; letter case is ignored.
    [[nodiscard]] virtual int Compare(const std::string& left, const std::string& right) const = 0;
};
