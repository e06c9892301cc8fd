#pragma once

#include "common/Settings.h"
#include "common/ports/AnsiCodePage.h"
#include "common/ports/Files.h"
#include "support/windows/Banner.h"
#include "support/windows/OnDemand.h"
#include "support/windows/TextViewerView.h"
#include "support/language/clsMultiLanguage.h"

#include <string>

// The text viewer: shows the program's documents in the current language.
class TextViewer : public TextViewerEvents {
public:
    struct Parts {
        OnDemand<TextViewerView>& window;
        clsMultiLanguage& language; // for its FileExists
        Files& files;
        const AnsiCodePage& codePage;
        const Settings& settings;
        Banner& banner;
        std::string programFolder; // without a backslash at its end
    };

    explicit TextViewer(Parts parts) : parts_(std::move(parts)) {}

    // Shows the window with an entry ("readme", "lizenz") selected.
    void Show(const std::string& entry);

    void EntryChosen(int index) override;
    void BannerClicked() override;
    TwipsSize TextSize(const TwipsSize& innerArea) const override;

private:
    Parts parts_;
};
