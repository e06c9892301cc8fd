#pragma once

#include <cstdint>
#include <string_view>

// Tells whether two contents of files are the same without keeping either: the length, and a hash
// of 128 bits.
//
// The hash is MurmurHash3 (x64, 128 bits, seed 0; public domain, Austin Appleby).  Nobody forges
// files against it here; that two differing files agree by chance has odds of one to 2^128, and it
// takes a small part of the time that reading a file takes.
struct ContentFingerprint {
    std::uint64_t length = 0;
    std::uint64_t low = 0;
    std::uint64_t high = 0;

    [[nodiscard]] static ContentFingerprint Of(std::string_view content) noexcept;

    bool operator==(const ContentFingerprint&) const = default;
};
