#pragma once

#include "mainwindow/FindView.h"
#include "platform/controls/CheckBox.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/HiddenCaption.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListView.h"
#include "platform/controls/StatusBar.h"
#include "platform/controls/Swatch.h"
#include "platform/controls/TextBox.h"
#include "platform/Form.h"
#include "platform/IconList.h"
#include "platform/Shortcuts.h"
#include "support/windows/FormOnDemand.h"

// The window that finds colors: a text box, a list that follows it, and the way to a row's color.
class frmFind : public FormOf<FindView> {
public:
    // Makes the window, hidden.  owner: the main window, which gets the commands of its keys.
    frmFind(HWND owner, ErrorSink& errors);

    void Attach(FindEvents& events);

    void SetWindowCaption(const std::string& caption) override;
    void SetColumnCaptions(const FindCaptions& captions) override;
    void ShowDifferences(bool shown) override;
    void ShowActiveColor(ColorNumber color) override;
    void ShowRows(int count, int selected) override;
    void AddRows(int count) override;
    void SelectRow(int row) override;
    void SetStatus(const std::string& text) override;
    void TickEvery(int milliseconds) override;
    void ShowModeless() override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
    void OnCloseBox() override;
    void OnLayout() override;
    bool TranslateShortcut(MSG& message) override;

private:
    [[nodiscard]] ControlPlace At(const char* name, int id) const { return {name, id, Handle()}; }
    [[nodiscard]] HWND MainWindow() const noexcept { return GetWindow(Handle(), GW_OWNER); }
    void AddColumns();
    void AddDifferences();
    void Choose();
    void ShowWhatCanBeDone();
    [[nodiscard]] int PlaceButtons(const RECT& area);
    int PlaceFields(int right);
    void FitColumns();

    FindEvents* events_ = nullptr;
    FindCaptions captions_;
    bool hasDifferences_ = false;
    Shortcuts shortcuts_;
    IconList imlLarge_;
    IconList imlSmall_;

    // In the order of the Tab key.
    Label& lblFind_;
    TextBox& txtFind_;
    CheckBox& chkLikeActive_;
    Swatch& lblLikeActive_;
    ListView& lvFind_;
    CommandButton& cmdShow_;
    CommandButton& cmdClose_;
    StatusBar& stbarFind_;
    HiddenCaption nameFound_;
};

using FindOnDemand = FormOnDemand<frmFind, FindView, FindEvents>;
