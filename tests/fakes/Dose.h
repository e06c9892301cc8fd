#pragma once

#include <algorithm>
#include <cstdlib>

// How much of something a test does that finds the more the longer it goes on: as much as the
// environment says, else what is little enough for every hour.  tests/README.md lists the doses.
[[nodiscard]] inline int Dose(const char* variable, int everyHour) {
    const char* const number = std::getenv(variable);
    return number != nullptr ? std::max(everyHour, std::atoi(number)) : everyHour;
}
