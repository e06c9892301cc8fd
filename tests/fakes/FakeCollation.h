#pragma once

#include "common/Text.h"
#include "common/ports/TextCollation.h"

class FakeCollation : public TextCollation {
public:
    std::string SortKey(const std::string& text) const override {
        ++keysMade;
        return ToLowerAscii(text);
    }

    // Beyond A to Z it knows one letter with an accent.
    std::string LowerCase(const std::string& text) const override {
        ++textsLowered;
        std::string lower = ToLowerAscii(text);
        for (std::size_t at = 0; (at = lower.find("\xC3\x84", at)) != std::string::npos;)
            lower.replace(at, 2, "\xC3\xA4");
        return lower;
    }

    mutable int textsLowered = 0;
    mutable int keysMade = 0;
};
