#pragma once

#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/PictureBox.h"
#include "platform/Form.h"
#include "support/windows/AboutView.h"
#include "support/windows/BannerPictures.h"
#include "support/windows/FormOnDemand.h"

// The About window: title, version, two links, the way to the system information, the banner.
class frmAbout : public FormOf<AboutView> {
public:
    // Makes the window, hidden.  The pictures must outlive it.
    frmAbout(HWND owner, ErrorSink& errors, const BannerPictures& banners);

    void Attach(AboutEvents& events);

    void SetWindowCaption(const std::string& caption) override;
    void SetTitle(const std::string& title) override;
    void SetVersion(const std::string& version) override;
    void SetBanner(int index) override;
    void ShowModal() override;

protected:
    void OnCloseBox() override { done_ = true; }
    void OnScaleChanged() override;
    void OnLayout() override;

private:
    struct Line {
        int left;
        int right;
        int top;
    };

    [[nodiscard]] ControlPlace At(const char* name, int id) const { return {name, id, Handle()}; }
    void PlaceText(Label& label, Line& line, int gap);
    void PlaceButtons(Line& line);
    void PlaceBanner(Line& line);

    const BannerPictures& banners_;
    FontHandle titleFont_;
    bool done_ = true;
    AboutEvents* events_ = nullptr;

    // In the order of the Tab key.
    IconBox& picIcon_;
    Label& lblTitle_;
    Label& lblVersion_;
    Label& lblDescription_;
    Label& lblDisclaimer_;
    LinkLabel& lblLinkHomepage_;
    LinkLabel& lblMail_;
    PictureBox& picSponsor_;
    CommandButton& cmdSysInfo_;
    CommandButton& cmdOK_;
};

using AboutOnDemand = FormOnDemand<frmAbout, AboutView, AboutEvents, BannerPictures>;
