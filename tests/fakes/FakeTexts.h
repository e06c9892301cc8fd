#pragma once

#include "common/ports/InfoTexts.h"

// Each text is its number in angle brackets: <99>.
class FakeTexts : public InfoTexts {
public:
    std::string GetInfoText(std::int32_t number) override {
        return "<" + std::to_string(number) + ">";
    }
    std::string GetInfoTextOr(std::int32_t number, const std::string&) override {
        return GetInfoText(number);
    }
};
