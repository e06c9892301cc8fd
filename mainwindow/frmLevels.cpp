#include "mainwindow/frmLevels.h"

#include "mainwindow/panes/FieldBorder.h"
#include "mainwindow/panes/NodeImages.h"
#include "platform/Canvas.h"
#include "platform/controls/ListLayout.h"
#include "platform/Utf16.h"
#include "resources/controls.h"

#include <algorithm>

namespace {

// Design pixels.
constexpr int kBesideRows = 26; // scroll bar and edges of the list

// Shares of the list's width, in percent: the state, and each value.
constexpr int kStateShare = 16;
constexpr int kValueShare = 7;
constexpr int kWhole = 100;

constexpr int kFirstValueColumn = 3;

FormDesign DesignFor(HWND owner) {
    return {
        L"frmLevels",        L"TNT4SWX", (WS_OVERLAPPEDWINDOW & ~WS_MINIMIZEBOX) | WS_CLIPCHILDREN,
        WS_EX_CONTROLPARENT, owner,      {680, 300},
        {620, 240}};
}

} // namespace

frmLevels::frmLevels(HWND owner, ErrorSink& errors)
    : FormOf(DesignFor(owner), errors), imlLarge_("imlLarge", {NodeImages::Color}),
      imlSmall_("imlSmall", {NodeImages::Color}),
      lblLevels_(Add<Label>(At("lblLevels", IDC_lblLevels), LabelText::Plain)),
      lvLevels_(Add<ListView>(At("lvLevels", IDC_lvLevels),
                              ListView::Images{imlLarge_, imlSmall_, NodeImages::Color})),
      cmdTake_(Add<CommandButton>(At("cmdTakeLevel", IDC_cmdTakeLevel), ButtonRole::Default)),
      cmdClear_(Add<CommandButton>(At("cmdClearLevel", IDC_cmdClearLevel))),
      cmdRead_(Add<CommandButton>(At("cmdReadLevels", IDC_cmdReadLevels))),
      cmdClose_(Add<CommandButton>(At("cmdCloseLevels", IDC_cmdCloseLevels))) {
    SetCaptions();
    ListenToControls();
    SetDefaultButton(IDC_cmdTakeLevel);
    for (std::size_t column = 0; column < kLevelColumns; ++column)
        lvLevels_.AddColumn("", 1);
    ShowWhatCanBeDone();
    frmLevels::OnLayout();
}

void frmLevels::SetCaptions() {
    cmdTake_.SetText("In den &Editor übernehmen");
    cmdClear_.SetText("Farbe ent&fernen");
    cmdRead_.SetText("&Neu lesen (F5)");
    cmdClose_.SetText("S&chließen");
}

void frmLevels::ListenToControls() {
    lvLevels_.cellText = [this](int row, int column) {
        return rows_.at(static_cast<std::size_t>(row))
            .cells.at(static_cast<std::size_t>(column) - 1);
    };
    lvLevels_.PaintPictures([this](const ListView::PicturePlace& place) { PaintSwatch(place); });
    lvLevels_.mayEdit = [] { return false; };
    lvLevels_.onClick = [this](int) { ShowWhatCanBeDone(); };
    lvLevels_.onDoubleClick = [this] { Take(); };
    cmdTake_.onClick = [this] { Take(); };
    cmdClear_.onClick = [this] { Clear(); };
    cmdRead_.onClick = [this] { Read(); };
    cmdClose_.onClick = [this] { OnCloseBox(); };
}

void frmLevels::SetWindowCaption(const std::string& caption) {
    SetWindowTextW(Handle(), ToUtf16(caption).c_str());
}

// The texts of the buttons have other widths now, too.
void frmLevels::SetColumnCaptions(const LevelCells& captions) {
    for (int column = 1; column <= static_cast<int>(captions.size()); ++column) {
        lvLevels_.SetColumnCaption(column, captions.at(static_cast<std::size_t>(column) - 1));
        if (column >= kFirstValueColumn)
            lvLevels_.AlignRight(column);
    }
    OnLayout();
}

void frmLevels::ShowRows(const std::vector<LevelRow>& rows, int selected) {
    rows_ = rows;
    lvLevels_.SetRowCount(static_cast<int>(rows_.size()));
    if (selected >= 0) {
        lvLevels_.SelectRow(selected);
        lvLevels_.EnsureVisible(selected);
    }
    ShowWhatCanBeDone();
}

// The list is announced by it, too.
void frmLevels::ShowSentence(const std::string& sentence) {
    lblLevels_.SetText(sentence);
    lvLevels_.SetText(sentence);
    OnLayout();
}

void frmLevels::ShowModeless() {
    if (IsWindowVisible(Handle()) == FALSE) {
        Show();
        lvLevels_.Focus();
    }
    SetForegroundWindow(Handle());
}

const LevelRow* frmLevels::SelectedLevel() const {
    const auto row = static_cast<std::size_t>(lvLevels_.SelectedRow());
    return lvLevels_.SelectedRow() >= 0 && row < rows_.size() ? &rows_[row] : nullptr;
}

void frmLevels::ShowWhatCanBeDone() {
    const LevelRow* level = SelectedLevel();
    const auto enable = [this](CommandButton& button, bool enabled) {
        if (!enabled && GetFocus() == button.Handle())
            lvLevels_.Focus(); // before the button turns grey
        button.SetEnabled(enabled);
    };
    enable(cmdTake_, level != nullptr && level->color.has_value());
    enable(cmdClear_, level != nullptr && level->canBeCleared);
}

// While a question is open the main window is disabled, and waits for its answer.
bool frmLevels::IsFree() const noexcept {
    return events_ != nullptr && IsWindowEnabled(GetWindow(Handle(), GW_OWNER)) != FALSE;
}

void frmLevels::Take() {
    const LevelRow* level = SelectedLevel();
    if (IsFree() && level != nullptr && level->color)
        events_->TakeClicked(lvLevels_.SelectedRow());
}

void frmLevels::Clear() {
    const LevelRow* level = SelectedLevel();
    if (IsFree() && level != nullptr && level->canBeCleared)
        events_->ClearClicked(lvLevels_.SelectedRow());
}

void frmLevels::Read() {
    if (IsFree())
        events_->ReadClicked();
}

// A level without a color has none: an empty frame would look white.
void frmLevels::PaintSwatch(const ListView::PicturePlace& place) const {
    const auto color = rows_.at(static_cast<std::size_t>(place.row)).color;
    if (!color)
        return;
    const Canvas canvas(place.device, Font());
    canvas.Fill(place.square, *color);
    canvas.Frame(place.square, FieldBorderColor(), 1);
}

void frmLevels::OnCloseBox() {
    if (events_ != nullptr)
        events_->LevelsClosing();
    Hide();
}

MessageResult frmLevels::OnMessage(const WindowMessage& message) {
    if (message.id == WM_SIZE) {
        OnLayout();
        return 0;
    }
    return Form::OnMessage(message);
}

bool frmLevels::TranslateShortcut(MSG& message) {
    if (message.message != WM_KEYDOWN || message.wParam != VK_F5)
        return false;
    Read();
    return true;
}

void frmLevels::OnLayout() {
    ListLayout{lblLevels_, lvLevels_, {&cmdTake_, &cmdClear_, &cmdRead_, &cmdClose_}}.Place(
        ClientArea(), Scale());
    FitColumns();
}

// All grow with the window; the name of the level gets what the others leave.
void frmLevels::FitColumns() {
    const int width = std::max(0, WidthOf(lvLevels_.Bounds()) - Scale().FromDesign(kBesideRows));
    const int state = width * kStateShare / kWhole;
    const int value = width * kValueShare / kWhole;
    lvLevels_.SetColumnWidth(1, width - state - value * static_cast<int>(kColorValueCount));
    lvLevels_.SetColumnWidth(2, state);
    for (int column = kFirstValueColumn; column <= static_cast<int>(kLevelColumns); ++column)
        lvLevels_.SetColumnWidth(column, value);
}
