#pragma once

#include "platform/controls/ComboBox.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/PictureBox.h"
#include "platform/controls/RichEdit.h"
#include "platform/Form.h"
#include "support/windows/BannerPictures.h"
#include "support/windows/FormOnDemand.h"
#include "support/windows/TextViewerView.h"

// The text viewer: which text, the text, and the button that closes the window.
class frmTxtView : public Form, public TextViewerView {
public:
    // Makes the window, hidden.  The pictures must outlive it.
    frmTxtView(HWND owner, ErrorSink& errors, const BannerPictures& banners);

    void Attach(TextViewerEvents& events);

    void SetEntries(const std::vector<std::string>& entries) override;
    void SetNames(const std::string& choice, const std::string& text) override;
    void SelectEntry(int index) override;
    void SetText(const std::string& text) override;
    void SetBanner(int index) override;
    void SetTopmost(bool onTop) override { MakeTopmost(onTop); }
    void ShowModeless() override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
    void OnCloseBox() override { Hide(); }
    void OnLayout() override;

private:
    [[nodiscard]] ControlPlace At(const char* name, int id) const { return {name, id, Handle()}; }
    void PlaceText();

    const BannerPictures& banners_;
    TextViewerEvents* events_ = nullptr;

    // In the order of the Tab key.
    Label& lblChoice_;
    ComboBox& cmbTxtView_;
    Label& lblText_;
    RichEdit& rtbShowtext_;
    CommandButton& cmdOkay_;
    PictureBox& picSponsor_;
};

using TextViewerOnDemand =
    FormOnDemand<frmTxtView, TextViewerView, TextViewerEvents, BannerPictures>;
