#pragma once

#include "mainwindow/RecoverView.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListView.h"
#include "platform/Form.h"
#include "platform/IconList.h"
#include "support/windows/FormOnDemand.h"

// The window with the libraries that can be recovered: a list, and what can be done with its rows.
class frmRecover : public FormOf<RecoverView> {
public:
    // Makes the window, hidden.
    frmRecover(HWND owner, ErrorSink& errors);

    void Attach(RecoverEvents& events);

    void SetWindowCaption(const std::string& caption) override;
    void SetColumnCaptions(const RecoverRow& captions) override;
    void SetRows(const std::vector<RecoverRow>& rows) override;
    std::vector<int> ShowModal() override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
    void OnCloseBox() override { done_ = true; }
    void OnLayout() override;
    bool TranslateShortcut(MSG& message) override; // Delete

private:
    [[nodiscard]] ControlPlace At(const char* name, int id) const { return {name, id, Handle()}; }
    void ChooseSelected();
    void ChooseAll();
    void ReportDelete();
    void ShowWhatCanBeDone();

    RecoverEvents* events_ = nullptr;
    std::vector<RecoverRow> rows_;
    std::vector<int> chosen_;
    bool done_ = true;
    bool hasColumns_ = false;
    IconList imlLarge_;
    IconList imlSmall_;

    // In the order of the Tab key.
    Label& lblRecover_;
    ListView& lvRecover_;
    CommandButton& cmdOpen_;
    CommandButton& cmdOpenAll_;
    CommandButton& cmdDelete_;
    CommandButton& cmdEmpty_;
    CommandButton& cmdClose_;
};

using RecoverOnDemand = FormOnDemand<frmRecover, RecoverView, RecoverEvents>;
