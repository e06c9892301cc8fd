#pragma once

#include "common/Text.h"
#include "common/ports/TextCollation.h"

class FakeCollation : public TextCollation {
public:
    int Compare(const std::string& left, const std::string& right) const override {
        return ToLowerAscii(left).compare(ToLowerAscii(right));
    }
};
