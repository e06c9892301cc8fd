#pragma once

#include "common/ports/Clipboard.h"

class FakeClipboard : public Clipboard {
public:
    std::optional<std::string> Text() override {
        if (isBusy)
            return std::nullopt;
        const std::string read = text.value_or("");
        if (textAfterReading)
            text = textAfterReading;
        return read;
    }
    bool SetText(const std::string& newText) override {
        if (isBusy)
            return false;
        text = replacedBy ? replacedBy : newText;
        return true;
    }

    std::optional<std::string> text;
    bool isBusy = false; // held open by another program
    // What another program puts there right after this one has read or set the text.
    std::optional<std::string> textAfterReading;
    std::optional<std::string> replacedBy;
};
