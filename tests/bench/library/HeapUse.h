#pragma once

#include <cstddef>

// What the program takes from the heap: the usable size of each block that comes from operator new,
// and the allocator's word in front of it.
namespace HeapUse {

struct Count {
    std::ptrdiff_t bytes = 0;
    std::ptrdiff_t blocks = 0;
    std::ptrdiff_t peakBytes = 0; // the most at any moment
};

// Counts while it lives, one at a time; asking for a block's size takes time of its own.
class Counting {
public:
    Counting() noexcept;
    ~Counting();
    Counting(const Counting&) = delete;
    Counting& operator=(const Counting&) = delete;

    // Since the start, less what was given back.
    [[nodiscard]] Count Taken() const noexcept;
};

} // namespace HeapUse
