#pragma once

#include "common/ports/Clipboard.h"

class FakeClipboard : public Clipboard {
public:
    std::optional<std::string> Text() override { return isBusy ? std::nullopt : text; }
    bool SetText(const std::string& newText) override {
        if (isBusy)
            return false;
        text = newText;
        return true;
    }

    std::optional<std::string> text;
    bool isBusy = false; // held open by another program
};
