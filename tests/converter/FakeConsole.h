#pragma once

#include "converter/Console.h"

#include <string>

// Keeps what it is told.
class FakeConsole : public Console {
public:
    bool Write(std::string_view text) override {
        if (isFull)
            return false;
        out += text;
        return true;
    }
    void Tell(std::string_view text) override { told += text; }
    [[nodiscard]] bool IsWatched() const override { return isWatched; }

    std::string out;
    std::string told;
    bool isWatched = false;
    bool isFull = false;
};
