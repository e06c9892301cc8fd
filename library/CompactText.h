#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

// A text of which there are very many, most of them short: up to 19 bytes take no block of memory
// of their own, and the whole takes 20.
class CompactText {
public:
    CompactText() = default;
    explicit CompactText(std::string_view text);
    CompactText(CompactText&& other) noexcept
        : bytes_(other.bytes_), length_(std::exchange(other.length_, std::uint8_t{0})) {}
    CompactText& operator=(CompactText&& other) noexcept {
        std::swap(bytes_, other.bytes_);
        std::swap(length_, other.length_);
        return *this;
    }
    CompactText(const CompactText& other) : CompactText(other.View()) {}
    CompactText& operator=(const CompactText&) = delete;
    ~CompactText() {
        if (length_ == kIsLong)
            delete Long();
    }

    // Valid until the text goes or is replaced.
    [[nodiscard]] std::string_view View() const noexcept {
        return length_ == kIsLong ? std::string_view(*Long())
                                  : std::string_view(bytes_.data(), length_);
    }
    operator std::string_view() const noexcept { return View(); }
    operator std::string() const { return std::string(View()); }

private:
    static constexpr std::size_t kRoom = 19;
    static constexpr std::size_t kPointerSize = sizeof(void*);
    static constexpr std::uint8_t kIsLong = 0xFF;

    [[nodiscard]] const std::string* Long() const noexcept {
        const std::string* text = nullptr;
        std::memcpy(&text, bytes_.data(), kPointerSize);
        return text;
    }

    std::array<char, kRoom> bytes_{}; // of a long text: where its string is, which belongs to this
    std::uint8_t length_ = 0;         // of a short text
};
