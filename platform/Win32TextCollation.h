#pragma once

#include "common/ports/TextCollation.h"

// CompareStringEx with the user's locale, letter case ignored: the order of lstrcmpiW, in which the
// list control sorts.
class Win32TextCollation : public TextCollation {
public:
    [[nodiscard]] int Compare(const std::string& left, const std::string& right) const override;
};
