#pragma once

#include <string>

// The copies of the program that run on this computer.
class RunningCopies {
public:
    virtual ~RunningCopies() = default;

    // The name of this copy: letters, digits and "-", never given twice.
    [[nodiscard]] virtual const std::string& Own() const = 0;

    // Whether a copy, by its name, runs still.  True for the own one.
    [[nodiscard]] virtual bool IsRunning(const std::string& copy) const = 0;
};
