#pragma once

#include "common/ports/RunningCopies.h"
#include "platform/KernelHandle.h"

// Each copy holds a mutex of its name for as long as it runs, however it ends.
class Win32RunningCopies : public RunningCopies {
public:
    // program: its name, which the mutexes have too.
    explicit Win32RunningCopies(std::string program);

    [[nodiscard]] const std::string& Own() const override { return own_; }
    [[nodiscard]] bool IsRunning(const std::string& copy) const override;

private:
    std::string program_;
    std::string own_; // date, time and process number
    KernelHandle mutex_;
};
