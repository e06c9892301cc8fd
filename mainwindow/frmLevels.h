#pragma once

#include "mainwindow/LevelsView.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListView.h"
#include "platform/Form.h"
#include "platform/IconList.h"
#include "support/windows/FormOnDemand.h"

// The window that tells which color is seen: a sentence, the levels, and what can be done with one.
class frmLevels : public FormOf<LevelsView> {
public:
    // Makes the window, hidden.  owner: the main window.
    frmLevels(HWND owner, ErrorSink& errors);

    void Attach(LevelsEvents& events) { events_ = &events; }

    void SetWindowCaption(const std::string& caption) override;
    void SetColumnCaptions(const LevelCells& captions) override;
    void ShowRows(const std::vector<LevelRow>& rows, int selected) override;
    void ShowSentence(const std::string& sentence) override;
    void ShowModeless() override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
    void OnCloseBox() override;
    void OnLayout() override;
    bool TranslateShortcut(MSG& message) override; // F5

private:
    [[nodiscard]] ControlPlace At(const char* name, int id) const { return {name, id, Handle()}; }
    [[nodiscard]] bool IsFree() const noexcept;
    [[nodiscard]] const LevelRow* SelectedLevel() const;
    void SetCaptions();
    void ListenToControls();
    void Take();
    void Clear();
    void Read();
    void PaintSwatch(const ListView::PicturePlace& place) const;
    void ShowWhatCanBeDone();
    void FitColumns();

    LevelsEvents* events_ = nullptr;
    std::vector<LevelRow> rows_;
    IconList imlLarge_;
    IconList imlSmall_;

    // In the order of the Tab key.
    Label& lblLevels_;
    ListView& lvLevels_;
    CommandButton& cmdTake_;
    CommandButton& cmdClear_;
    CommandButton& cmdRead_;
    CommandButton& cmdClose_;
};

using LevelsOnDemand = FormOnDemand<frmLevels, LevelsView, LevelsEvents>;
