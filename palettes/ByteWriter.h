#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

// Puts big-endian numbers together.
class ByteWriter {
public:
    void U16(std::uint16_t number) {
        bytes_ += static_cast<char>(number >> 8U);
        bytes_ += static_cast<char>(number & 0xFFU);
    }
    void U32(std::uint32_t number) {
        U16(static_cast<std::uint16_t>(number >> 16U));
        U16(static_cast<std::uint16_t>(number & 0xFFFFU));
    }
    void Float(float number) { U32(std::bit_cast<std::uint32_t>(number)); }
    void Bytes(std::string_view bytes) { bytes_ += bytes; }

    [[nodiscard]] std::string Take() noexcept { return std::move(bytes_); }

private:
    std::string bytes_;
};
