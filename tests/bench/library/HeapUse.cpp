#include "tests/bench/library/HeapUse.h"

#include <algorithm>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

// One thread measures.
bool isCounting = false;
HeapUse::Count now;

std::size_t SizeOf(void* block) noexcept {
#ifdef _WIN32
    return _msize(block) + sizeof(void*);
#else
    return malloc_usable_size(block) + sizeof(void*);
#endif
}

void* TakeOrNull(std::size_t size) noexcept {
    void* const block = std::malloc(size);
    if (isCounting && block != nullptr) {
        now.bytes += static_cast<std::ptrdiff_t>(SizeOf(block));
        ++now.blocks;
        now.peakBytes = std::max(now.peakBytes, now.bytes);
    }
    return block;
}

void* Take(std::size_t size) {
    void* const block = TakeOrNull(size);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

void Give(void* block) noexcept {
    if (isCounting && block != nullptr) {
        now.bytes -= static_cast<std::ptrdiff_t>(SizeOf(block));
        --now.blocks;
    }
    std::free(block);
}

} // namespace

void* operator new(std::size_t size) {
    return Take(size);
}
void* operator new[](std::size_t size) {
    return Take(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return TakeOrNull(size);
}
void operator delete(void* block) noexcept {
    Give(block);
}
void operator delete[](void* block) noexcept {
    Give(block);
}
void operator delete(void* block, std::size_t) noexcept {
    Give(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    Give(block);
}

namespace HeapUse {

Counting::Counting() noexcept {
    now = {};
    isCounting = true;
}
Counting::~Counting() {
    isCounting = false;
}
Count Counting::Taken() const noexcept {
    return now;
}

} // namespace HeapUse
