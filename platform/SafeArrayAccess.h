#pragma once

#include <cstddef>
#include <windows.h>
#include <oleauto.h>

// The elements of a one-dimensional array, in place while this object lives (SafeArrayAccessData).
class SafeArrayAccess {
public:
    // A null array has no elements.  Throws RuntimeError TypeMismatch for more than one dimension.
    explicit SafeArrayAccess(SAFEARRAY* array);
    SafeArrayAccess(const SafeArrayAccess&) = delete;
    SafeArrayAccess& operator=(const SafeArrayAccess&) = delete;
    ~SafeArrayAccess();

    [[nodiscard]] std::size_t Count() const noexcept { return count_; }
    [[nodiscard]] void* Element(std::size_t index) const noexcept; // from 0

private:
    SAFEARRAY* array_;
    void* elements_ = nullptr;
    std::size_t count_ = 0;
};
