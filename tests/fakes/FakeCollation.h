#pragma once

#include "common/Text.h"
#include "common/ports/TextCollation.h"

class FakeCollation : public TextCollation {
public:
    std::string SortKey(const std::string& text) const override {
        ++keysMade;
        return ToLowerAscii(text);
    }

    mutable int keysMade = 0;
};
