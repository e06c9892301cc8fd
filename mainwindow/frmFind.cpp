#include "mainwindow/frmFind.h"

#include "mainwindow/panes/FieldBorder.h"
#include "mainwindow/panes/MainBars.h"
#include "mainwindow/panes/NodeImages.h"
#include "platform/Canvas.h"
#include "platform/Utf16.h"
#include "resources/controls.h"

#include <algorithm>

namespace {

constexpr UINT_PTR kTimer = 1;

// Design pixels.
constexpr int kMargin = 12;
constexpr int kGap = 8;
constexpr int kBoxBorder = 8; // of the text box, above and below the text together
constexpr int kSwatchWidth = 48;
constexpr int kDifference = 90; // width of its column
constexpr int kBesideRows = 26; // scroll bar and edges of the list

// Shares of the list's width, in percent: name, group, library.
constexpr int kNameShare = 44;
constexpr int kGroupShare = 28;
constexpr int kWhole = 100;

constexpr int kDifferenceColumn = 4;

FormDesign DesignFor(HWND owner) {
    return {
        L"frmFind",          L"TNT4SWX", (WS_OVERLAPPEDWINDOW & ~WS_MINIMIZEBOX) | WS_CLIPCHILDREN,
        WS_EX_CONTROLPARENT, owner,      {560, 420},
        {420, 260}};
}

// Those of the main window's keys that find.
std::vector<ShortcutDesign> FindingKeys() {
    std::vector<ShortcutDesign> keys = MainBars::ShortcutKeys();
    std::erase_if(keys, [](const ShortcutDesign& key) {
        return key.command != IDM_mnuEditFind && key.command != IDM_mnuEditFindNext &&
               key.command != IDM_mnuEditFindPrevious;
    });
    return keys;
}

} // namespace

frmFind::frmFind(HWND owner, ErrorSink& errors)
    : FormOf(DesignFor(owner), errors), shortcuts_(FindingKeys()),
      imlLarge_("imlLarge", {NodeImages::Color}), imlSmall_("imlSmall", {NodeImages::Color}),
      lblFind_(Add<Label>(At("lblFind", IDC_lblFind))),
      txtFind_(Add<TextBox>(At("txtFind", IDC_txtFind))),
      chkLikeActive_(Add<CheckBox>(At("chkLikeActive", IDC_chkLikeActive))),
      lblLikeActive_(Add<Swatch>(At("lblLikeActive", IDC_lblLikeActive))),
      lvFind_(Add<ListView>(At("lvFind", IDC_lvFind),
                            ListView::Images{imlLarge_, imlSmall_, NodeImages::Color})),
      cmdShow_(Add<CommandButton>(At("cmdShow", IDC_cmdShow), ButtonRole::Default)),
      cmdClose_(Add<CommandButton>(At("cmdCloseFind", IDC_cmdCloseFind))),
      stbarFind_(Add<StatusBar>(At("stbarFind", IDC_stbarFind))),
      nameFound_("nameFound", "Gefundene Farben",
                 [this](const std::string& text) { lvFind_.SetText(text); }) {
    AddDesigned(nameFound_);
    lvFind_.SetText("Gefundene Farben");
    lblLikeActive_.SetText("Aktive Farbe"); // painted in its ground's color: announced, not seen
    lblFind_.SetText("&Suchen nach:");
    chkLikeActive_.SetText("&Wie die aktive Farbe");
    cmdShow_.SetText("&Anzeigen");
    cmdClose_.SetText("S&chließen");
    lvFind_.mayEdit = [] { return false; };
    lvFind_.onDoubleClick = [this] { Choose(); };
    cmdShow_.onClick = [this] { Choose(); };
    cmdClose_.onClick = [this] { OnCloseBox(); };
    SetDefaultButton(IDC_cmdShow);
    AddColumns();
    ShowWhatCanBeDone();
    frmFind::OnLayout();
}

void frmFind::Attach(FindEvents& events) {
    events_ = &events;
    txtFind_.onChange = [&events](const std::string& text) { events.TextChanged(text); };
    chkLikeActive_.onChange = [&events](bool isChecked) {
        events.LikeActiveColorChosen(isChecked);
    };
    lvFind_.cellText = [&events](int row, int column) { return events.CellText(row, column); };
    lvFind_.PaintPictures([this, &events](const ListView::PicturePlace& place) {
        const Canvas canvas(place.device, Font());
        canvas.Fill(place.square, events.ColorOfRow(place.row));
        canvas.Frame(place.square, FieldBorderColor(), 1);
    });
    lvFind_.onClick = [&events](int row) { events.RowSelected(row); };
}

void frmFind::AddColumns() {
    for (int column = 1; column < kDifferenceColumn; ++column)
        lvFind_.AddColumn("", 1);
}

void frmFind::AddDifferences() {
    lvFind_.AddColumn(captions_[kDifferenceColumn - 1], 1);
    lvFind_.AlignRight(kDifferenceColumn);
}

void frmFind::SetWindowCaption(const std::string& caption) {
    SetWindowTextW(Handle(), ToUtf16(caption).c_str());
}

// The texts of the fields have other widths now, too.
void frmFind::SetColumnCaptions(const FindCaptions& captions) {
    captions_ = captions;
    const int columns = kDifferenceColumn - (hasDifferences_ ? 0 : 1);
    for (int column = 1; column <= columns; ++column)
        lvFind_.SetColumnCaption(column, captions_.at(static_cast<std::size_t>(column) - 1));
    if (hasDifferences_)
        lvFind_.AlignRight(kDifferenceColumn); // the header's text too, which is a new one
    OnLayout();
}

void frmFind::ShowDifferences(bool shown) {
    if (std::exchange(hasDifferences_, shown) == shown)
        return;
    if (shown)
        AddDifferences();
    else
        lvFind_.RemoveLastColumn();
    FitColumns();
}

void frmFind::ShowActiveColor(ColorNumber color) {
    lblLikeActive_.SetColors(color, color);
}

void frmFind::ShowRows(int count, int selected) {
    lvFind_.SetRowCount(count);
    if (selected >= 0)
        SelectRow(selected);
    ShowWhatCanBeDone();
}

void frmFind::AddRows(int count) {
    lvFind_.AddRowsTo(count);
}

void frmFind::SelectRow(int row) {
    lvFind_.SelectRow(row);
    lvFind_.EnsureVisible(row);
}

void frmFind::ShowWhatCanBeDone() {
    const bool isSelected = lvFind_.SelectedRow() >= 0;
    if (!isSelected && GetFocus() == cmdShow_.Handle())
        txtFind_.Focus(); // before the button turns grey
    cmdShow_.SetEnabled(isSelected);
}

void frmFind::SetStatus(const std::string& text) {
    stbarFind_.SetPanelText(text);
}

void frmFind::TickEvery(int milliseconds) {
    if (milliseconds > 0)
        SetTimer(Handle(), kTimer, static_cast<UINT>(milliseconds), nullptr);
    else
        KillTimer(Handle(), kTimer);
}

void frmFind::ShowModeless() {
    if (IsWindowVisible(Handle()) == FALSE)
        Show();
    SetForegroundWindow(Handle());
    txtFind_.Focus();
    txtFind_.SelectAll();
}

// While a question is open the main window is disabled, and waits for its answer.
void frmFind::Choose() {
    if (events_ != nullptr && lvFind_.SelectedRow() >= 0 && IsWindowEnabled(MainWindow()) != FALSE)
        events_->RowChosen(lvFind_.SelectedRow());
}

void frmFind::OnCloseBox() {
    if (events_ != nullptr)
        events_->FindClosing();
    Hide();
}

MessageResult frmFind::OnMessage(const WindowMessage& message) {
    if (message.id == WM_SIZE) {
        OnLayout();
        return 0;
    }
    if (message.id == WM_TIMER && events_ != nullptr) {
        events_->Ticked();
        return 0;
    }
    return Form::OnMessage(message);
}

// Down leads from the text to its hits.
bool frmFind::TranslateShortcut(MSG& message) {
    if (message.message == WM_KEYDOWN && message.wParam == VK_DOWN &&
        GetFocus() == txtFind_.Handle()) {
        lvFind_.Focus();
        return true;
    }
    return shortcuts_.Translate(MainWindow(), message);
}

void frmFind::OnLayout() {
    const int margin = Scale().FromDesign(kMargin);
    const int gap = Scale().FromDesign(kGap);
    stbarFind_.FollowForm();
    const RECT area = ClientArea();
    const int right = PlaceButtons(area) - gap;
    const int top = PlaceFields(right) + gap;
    const LONG bottom = stbarFind_.Bounds().top - gap;
    lvFind_.Place({margin, top, area.right - margin, std::max<LONG>(top, bottom)});
    FitColumns();
}

// Below each other on the right; gives their left edge.
int frmFind::PlaceButtons(const RECT& area) {
    const int margin = Scale().FromDesign(kMargin);
    const SIZE show = cmdShow_.IdealSize();
    const SIZE close = cmdClose_.IdealSize();
    const int right = static_cast<int>(area.right) - margin;
    const int left = right - static_cast<int>(std::max(show.cx, close.cx));
    const int middle = margin + static_cast<int>(show.cy);
    const int lower = middle + Scale().FromDesign(kGap);
    cmdShow_.Place({left, margin, right, middle});
    cmdClose_.Place({left, lower, right, lower + close.cy});
    return left;
}

// The fields stand in the lines of the buttons; gives their lower edge.
int frmFind::PlaceFields(int right) {
    const int margin = Scale().FromDesign(kMargin);
    const int gap = Scale().FromDesign(kGap);
    const RECT upper = cmdShow_.Bounds();
    const RECT lower = cmdClose_.Bounds();
    const auto centred = [](const RECT& line, int left, int lineRight, LONG height) {
        const LONG top = (line.top + line.bottom - height) / 2;
        return RECT{left, top, lineRight, top + height};
    };
    const SIZE label = lblFind_.TextSize();
    const SIZE check = chkLikeActive_.IdealSize();
    const int labelRight = margin + static_cast<int>(label.cx);
    const int checkRight = margin + static_cast<int>(check.cx);
    lblFind_.Place(centred(upper, margin, labelRight, label.cy));
    txtFind_.Place(centred(upper, labelRight + gap, std::max(right, labelRight + gap),
                           label.cy + Scale().FromDesign(kBoxBorder)));
    chkLikeActive_.Place(centred(lower, margin, checkRight, check.cy));
    lblLikeActive_.Place(centred(lower, checkRight + gap,
                                 checkRight + gap + Scale().FromDesign(kSwatchWidth), check.cy));
    return static_cast<int>(lower.bottom);
}

void frmFind::FitColumns() {
    const int difference = hasDifferences_ ? Scale().FromDesign(kDifference) : 0;
    const int rest =
        std::max(0, WidthOf(lvFind_.Bounds()) - Scale().FromDesign(kBesideRows) - difference);
    const int name = rest * kNameShare / kWhole;
    const int group = rest * kGroupShare / kWhole;
    lvFind_.SetColumnWidth(1, name);
    lvFind_.SetColumnWidth(2, group);
    lvFind_.SetColumnWidth(3, rest - name - group);
    if (hasDifferences_)
        lvFind_.SetColumnWidth(kDifferenceColumn, difference);
}
