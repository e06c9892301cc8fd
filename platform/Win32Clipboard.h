#pragma once

#include "common/ports/Clipboard.h"
#include "platform/OwnerWindow.h"

#include <functional>

// The plain-text format of the clipboard, CF_UNICODETEXT.
class Win32Clipboard : public Clipboard {
public:
    // The owner is the window in whose name text is put on the clipboard.  pause: waits a moment
    // for another program that holds the clipboard open.
    explicit Win32Clipboard(OwnerWindow owner, std::function<void()> pause = ShortPause)
        : owner_(std::move(owner)), pause_(std::move(pause)) {}

    // Up to the first NUL.  Nothing for a text of more than 16 MiB.
    [[nodiscard]] std::optional<std::string> Text() override;

    [[nodiscard]] bool SetText(const std::string& text) override;

private:
    static void ShortPause();

    OwnerWindow owner_;
    std::function<void()> pause_;
};
