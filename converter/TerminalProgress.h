#pragma once

#include "converter/Console.h"
#include "library/WorkProgress.h"

#include <cstdint>
#include <string>

// How far a work has come, in per cent, on the terminal's last line, which is empty again at the
// end.  Says nothing where there is no terminal.
class TerminalProgress : public WorkProgress {
public:
    // label: what is done, in ASCII.
    TerminalProgress(Console& console, std::string label);
    ~TerminalProgress() override;
    TerminalProgress(const TerminalProgress&) = delete;
    TerminalProgress& operator=(const TerminalProgress&) = delete;

    void Starts(std::int32_t total) override;
    void Reaches(std::int32_t done) override;

private:
    Console& console_;
    std::string label_;
    bool isWatched_;
    std::int64_t total_ = 0;
    std::int64_t next_ = 0; // what is told next, in per cent
    std::string shown_;
};
