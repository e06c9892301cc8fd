#pragma once

#include "common/ports/FormWindow.h"
#include "common/ports/LocalizableForm.h"

#include <string>

// frmAbout as its rules see it.
class AboutView : public FormWindow, public LocalizableForm {
public:
    [[nodiscard]] std::string Name() const override { return "frmAbout"; }

    virtual void SetWindowCaption(const std::string& caption) = 0;
    virtual void SetTitle(const std::string& title) = 0;     // lblTitle
    virtual void SetVersion(const std::string& version) = 0; // lblVersion
    virtual void SetBanner(int index) = 0;                   // from 1; 0: none

    // Shows the window modally over the main window; returns when it is closed.
    virtual void ShowModal() = 0;
};

// What the user did in frmAbout.
class AboutEvents {
public:
    virtual ~AboutEvents() = default;
    virtual void AboutUnloading() = 0; // before the window is destroyed
    virtual void SystemInfoClicked() = 0;
    virtual void HomepageClicked() = 0;
    virtual void MailClicked() = 0;
    virtual void BannerClicked() = 0;
};
