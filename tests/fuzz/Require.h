#pragma once

#include <cstdlib>

// Ends the fuzzer with a finding when a condition does not hold.
inline void Require(bool condition) {
    if (!condition)
        std::abort();
}
