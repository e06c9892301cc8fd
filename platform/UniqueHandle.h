#pragma once

#include <utility>

// Owns one handle of the platform.  Traits name its type, the value that stands for "none" and the
// function that gives it back:
//     struct Traits { using Handle = ...; static Handle None() noexcept; static bool Close(Handle)
//     noexcept; };
template <typename Traits>
class UniqueHandle {
public:
    using Handle = typename Traits::Handle;

    UniqueHandle() noexcept = default;
    explicit UniqueHandle(Handle handle) noexcept : handle_(handle) {}
    UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.Release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        if (this != &other) {
            Close();
            handle_ = other.Release();
        }
        return *this;
    }
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    ~UniqueHandle() { Close(); }

    [[nodiscard]] explicit operator bool() const noexcept { return handle_ != Traits::None(); }
    [[nodiscard]] Handle Get() const noexcept { return handle_; }

    // For functions that return the handle through a pointer; the one held before is closed.
    [[nodiscard]] Handle* Receive() noexcept {
        Close();
        return &handle_;
    }

    // Gives the handle out of this object's care.
    [[nodiscard]] Handle Release() noexcept { return std::exchange(handle_, Traits::None()); }

    // False when nothing was held or the platform reports a failure; nothing is held afterwards.
    bool Close() noexcept { return *this && Traits::Close(Release()); }

private:
    Handle handle_ = Traits::None();
};
