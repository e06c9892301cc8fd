#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

// Takes big-endian numbers from bytes and never goes beyond their end: what is not there is 0 or
// empty, and the reader has failed from then on.
class ByteReader {
public:
    explicit ByteReader(std::string_view bytes) noexcept : rest_(bytes) {}

    [[nodiscard]] bool HasFailed() const noexcept { return hasFailed_; }
    [[nodiscard]] std::size_t Left() const noexcept { return rest_.size(); }

    std::uint16_t U16() noexcept { return static_cast<std::uint16_t>(Number(2)); }
    std::uint32_t U32() noexcept { return Number(4); }
    float Float() noexcept { return std::bit_cast<float>(Number(4)); }

    std::string_view Bytes(std::size_t count) noexcept {
        if (count > rest_.size()) {
            Fail();
            return {};
        }
        const std::string_view bytes = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return bytes;
    }

private:
    std::uint32_t Number(std::size_t size) noexcept {
        std::uint32_t number = 0;
        for (const char byte : Bytes(size))
            number = number << 8U | static_cast<unsigned char>(byte);
        return number;
    }
    void Fail() noexcept {
        hasFailed_ = true;
        rest_ = {};
    }

    std::string_view rest_;
    bool hasFailed_ = false;
};
