#pragma once

#include <string_view>

// Where the program writes what it has to say.  Texts are UTF-8, their lines end with LF.
class Console {
public:
    virtual ~Console() = default;

    // To standard output; false: it does not take all of it.
    [[nodiscard]] virtual bool Write(std::string_view text) = 0;

    // To standard error.
    virtual void Tell(std::string_view text) = 0;

    // Whether standard error is a terminal, in front of which somebody may sit.
    [[nodiscard]] virtual bool IsWatched() const = 0;
};
