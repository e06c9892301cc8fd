#pragma once

#include "common/ports/TextCollation.h"

// The order of lstrcmpiW, in which the list control sorts: that of the user's locale, letter case
// ignored.  A text that the platform cannot map comes first.
class Win32TextCollation : public TextCollation {
public:
    [[nodiscard]] std::string SortKey(const std::string& text) const override;
    [[nodiscard]] std::string LowerCase(const std::string& text) const override;
};
