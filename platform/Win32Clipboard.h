#pragma once

#include "common/ports/Clipboard.h"
#include "platform/OwnerWindow.h"

// The plain-text format of the clipboard, CF_UNICODETEXT.
class Win32Clipboard : public Clipboard {
public:
    // The owner is the window in whose name text is put on the clipboard.
    explicit Win32Clipboard(OwnerWindow owner) : owner_(std::move(owner)) {}

    // Up to the first NUL.  Nothing for a text of more than 16 MiB.
    [[nodiscard]] std::optional<std::string> Text() override;

    [[nodiscard]] bool SetText(const std::string& text) override;

private:
    OwnerWindow owner_;
};
