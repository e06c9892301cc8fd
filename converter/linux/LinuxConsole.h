#pragma once

#include "converter/Console.h"

// Standard output and standard error.
class LinuxConsole : public Console {
public:
    [[nodiscard]] bool Write(std::string_view text) override;
    void Tell(std::string_view text) override;
    [[nodiscard]] bool IsWatched() const override;
};
