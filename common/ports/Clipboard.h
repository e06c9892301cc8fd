#pragma once

#include <optional>
#include <string>

// The plain text of the system's clipboard, UTF-8.
class Clipboard {
public:
    virtual ~Clipboard() = default;

    // Empty when the clipboard holds no text; nothing when it cannot be opened.
    [[nodiscard]] virtual std::optional<std::string> Text() = 0;

    // Clears the clipboard and puts the text on it; false when it could not be put there.
    [[nodiscard]] virtual bool SetText(const std::string& text) = 0;
};
