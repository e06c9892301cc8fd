#pragma once

#include "converter/Console.h"

// Standard output and standard error: UTF-8 into files and pipes, characters onto a console,
// whatever its code page.
class Win32Console : public Console {
public:
    [[nodiscard]] bool Write(std::string_view text) override;
    void Tell(std::string_view text) override;
    [[nodiscard]] bool IsWatched() const override;
};
