#pragma once

#include "common/ports/RunningCopies.h"

#include <set>
#include <string>

class FakeRunningCopies : public RunningCopies {
public:
    const std::string& Own() const override { return own; }
    bool IsRunning(const std::string& copy) const override {
        return copy == own || others.contains(copy);
    }

    std::string own = "own";
    std::set<std::string> others;
};
