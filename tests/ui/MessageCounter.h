#pragma once

#include "platform/controls/Control.h"

#include <commctrl.h>
#include <map>

// Counts the messages that a window gets, by their numbers, while this lives.
class MessageCounter {
public:
    explicit MessageCounter(HWND window) : window_(window) {
        SetWindowSubclass(window_, Procedure, reinterpret_cast<UINT_PTR>(this),
                          reinterpret_cast<DWORD_PTR>(this));
    }
    ~MessageCounter() {
        RemoveWindowSubclass(window_, Procedure, reinterpret_cast<UINT_PTR>(this));
    }
    MessageCounter(const MessageCounter&) = delete;
    MessageCounter& operator=(const MessageCounter&) = delete;

    [[nodiscard]] const std::map<UINT, int>& Counts() const noexcept { return counts_; }
    [[nodiscard]] int Count(UINT message) const {
        const auto found = counts_.find(message);
        return found == counts_.end() ? 0 : found->second;
    }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM word, LPARAM value,
                                      UINT_PTR, DWORD_PTR counter) {
        ++reinterpret_cast<MessageCounter*>(counter)->counts_[message];
        return DefSubclassProc(window, message, word, value);
    }

    HWND window_;
    std::map<UINT, int> counts_;
};
