#include "mainwindow/frmMain.h"

#include "mainwindow/CommandTable.h"
#include "mainwindow/frmMainBars.h"
#include "platform/DroppedFiles.h"
#include "resources/controls.h"

#include <algorithm>

namespace {

constexpr FormDesign kDesign{L"frmMain",
                             L"TNT4SWX",
                             WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                             WS_EX_CONTROLPARENT | WS_EX_ACCEPTFILES,
                             nullptr,
                             {800, 600},
                             {}};

const std::vector<std::string> kNodeImages = {"Palette", "Colbrush", "Colcubes", "Colfile"};

constexpr UINT_PTR kBannerTimer = 1;
constexpr UINT kBannerInterval = 5000; // milliseconds

} // namespace

frmMain::frmMain(ErrorSink& errors, const BannerPictures& banners)
    : FormOf(kDesign, errors), banners_(banners), shortcuts_(MainBars::ShortcutKeys()),
      imlToolbarIcons_("imlToolbarIcons", MainBars::ToolbarIcons()),
      imlView_("imlView", {NodeImage::Color}), imlViewSmall_("imlViewSmall", kNodeImages),
      tlbarMain_(Add<Toolbar>(At("tlbarMain", IDC_tlbarMain), imlToolbarIcons_,
                              MainBars::ToolbarButtonDesigns())),
      tvColor_(Add<TreeView>(At("tvColor", IDC_tvColor), imlViewSmall_)),
      imgSplitter_(Add<Splitter>(At("imgSplitter", IDC_imgSplitter))),
      lvColor_(Add<ListView>(At("lvColor", IDC_lvColor),
                             ListView::Images{imlView_, imlViewSmall_, NodeImage::Color})),
      editor_(*this), stbarMain_(Add<StatusBar>(At("stbarMain", IDC_stbarMain))),
      picSponsor_(Add<PictureBox>(At("picSponsor", IDC_picSponsor))),
      picSplitter_(Add<SolidBar>(At("picSplitter", IDC_picSplitter))),
      lblDrag_(Add<Label>(At("lblDrag", IDC_lblDrag))),
      drag_(*this, {lvColor_, tvColor_, lblDrag_}) {
    MainBars::BuildMenu(menu_);
    menu_.AttachTo(Handle());
    for (FormControl* entry : menu_.Entries())
        AddDesigned(*entry);
    for (FormControl* component :
         {static_cast<FormControl*>(&imlToolbarIcons_), static_cast<FormControl*>(&imlView_),
          static_cast<FormControl*>(&imlViewSmall_), static_cast<FormControl*>(&timSponsor_)})
        AddDesigned(*component);
    for (HiddenCaption& name : accessibleNames_)
        AddDesigned(name);
    lblDrag_.Show(false);
    FollowSize();
}

// The control is announced by the name, which the language file may replace.
HiddenCaption frmMain::Announce(Control& control, const char* captionName, const char* name) {
    control.SetText(name);
    return {captionName, name, [&control](const std::string& text) { control.SetText(text); }};
}

void frmMain::Attach(MainViewEvents& events) {
    events_ = &events;
    ConnectTree(events);
    ConnectList(events);
    editor_.Attach(events);
    drag_.Attach(events);
    tlbarMain_.onCommand = [&events](int command) { events.RunCommand(command); };
    imgSplitter_.onPress = [&events] { events.SplitterPressed(); };
    imgSplitter_.onDrag = [this, &events](int x) { events.SplitterDragged(Scale().ToTwips(x)); };
    imgSplitter_.onRelease = [&events] { events.SplitterReleased(); };
    picSponsor_.onClick = [&events] { events.BannerClicked(); };
    OnLayout(); // the list's columns are made for the width that it has in the window as designed
}

void frmMain::ConnectTree(MainViewEvents& events) {
    tvColor_.onClick = [&events](const std::string& key) { events.NodeClicked(key); };
    tvColor_.onEditRequested = [&events] { events.NodeEditRequested(); };
    tvColor_.mayEdit = [&events] { return events.MayEditNode(); };
    tvColor_.onLabelEdited = [&events](const std::string& key, const std::string& text) {
        events.NodeLabelEdited(key, text);
    };
    tvColor_.onContextMenu = [this](POINT at) { OpenColorMenu(at); };
}

void frmMain::ConnectList(MainViewEvents& events) {
    lvColor_.cellText = [&events](int row, int column) { return events.CellText(row, column); };
    lvColor_.findRow = [&events](const std::string& text, int start) {
        return events.FindRow(text, start);
    };
    lvColor_.onClick = [&events](int row) { events.RowClicked(row); };
    lvColor_.onEditRequested = [&events] { events.RowEditRequested(); };
    lvColor_.mayEdit = [&events] { return events.MayEditRow(); };
    lvColor_.onLabelEdited = [&events](int row, const std::string& text) {
        events.RowLabelEdited(row, text);
    };
    lvColor_.onColumnClick = [&events](int column) { events.ColumnClicked(column); };
    lvColor_.onContextMenu = [this](POINT at) { OpenColorMenu(at); };
}

void frmMain::OpenColorMenu(POINT at) const {
    menu_.OpenPopup(IDM_mnuColor, Handle(), at);
}

MessageResult frmMain::OnMessage(const WindowMessage& message) {
    if (events_ == nullptr)
        return Form::OnMessage(message);
    switch (message.id) {
    case WM_SIZE:
        FollowSize();
        events_->Resized();
        return 0;
    case WM_PAINT:
        events_->Repainted();
        return {};
    case WM_TIMER:
        if (message.wParam == MainDrag::kTimer)
            events_->DragTicked(drag_.Point());
        else
            events_->BannerTicked();
        return 0;
    case WM_DROPFILES: {
        const std::vector<std::string> files = TakeDroppedFiles(message.wParam);
        // The shell drops them also while a question is open, in the middle of a command.
        if (IsWindowEnabled(message.window) != FALSE)
            events_->FilesDropped(files);
        return 0;
    }
    case WM_SETCURSOR: // the controls ask here before they show their own
        if (!ShowsWaiting())
            return {};
        WaitCursor::Show();
        return TRUE;
    case WM_ENDSESSION: // the session ends without asking for the close box
        if (message.wParam != FALSE)
            events_->SessionEnding();
        return 0;
    default:
        return Form::OnMessage(message);
    }
}

void frmMain::OnMenuCommand(int command) {
    if (events_ != nullptr && MainBars::IsMenuCommand(command))
        events_->RunCommand(command);
}

void frmMain::OnCancelKey() {
    if (events_ != nullptr)
        events_->EscapePressed();
}

void frmMain::OnCloseBox() {
    if (events_ != nullptr)
        events_->WindowClosing();
}

bool frmMain::TranslateShortcut(MSG& message) {
    if (drag_.TakeKey(message))
        return true;
    // Anywhere but in the list the key would delete a colour that the user is not looking at.
    if (message.wParam == VK_DELETE && GetFocus() != lvColor_.Handle())
        return false;
    if (message.message == WM_KEYDOWN && message.wParam == VK_F6) {
        FocusNextPane(GetKeyState(VK_SHIFT) < 0);
        return true;
    }
    return shortcuts_.Translate(Handle(), message);
}

// Tree, list and, while it is shown, the large editor, in this order and round.
void frmMain::FocusNextPane(bool backwards) {
    std::vector<HWND> panes = {tvColor_.Handle(), lvColor_.Handle()};
    if (editor_.FrameControl().IsShown())
        panes.push_back(editor_.FrameControl().Handle());
    const HWND focus = GetFocus();
    const auto current = std::find_if(panes.begin(), panes.end(), [focus](HWND pane) {
        return pane == focus || IsChild(pane, focus) != FALSE;
    });
    std::size_t next = 0; // from anywhere else to the tree
    if (current != panes.end()) {
        const auto index = static_cast<std::size_t>(current - panes.begin());
        next = (index + (backwards ? panes.size() - 1 : 1)) % panes.size();
    }
    if (panes[next] == editor_.FrameControl().Handle())
        editor_.Box(0).Focus();
    else
        SetFocus(panes[next]);
}

void frmMain::OnScaleChanged() {
    FollowSize();
    if (events_ != nullptr)
        events_->ScaleChanged();
}

void frmMain::OnLayout() {
    FollowSize();
    if (events_ != nullptr)
        events_->Resized();
    if (editor_.FrameControl().IsShown()) // a hidden one is arranged when it is shown
        editor_.Arrange();
}

// The bars place themselves, also while the window is maximised.
void frmMain::FollowSize() {
    tlbarMain_.FollowForm();
    stbarMain_.FollowForm();
    PlaceBanner();
}

// TreePane

void frmMain::NodeAdded(const LibraryNode& node) {
    tvColor_.AddNode(node.key, node.parent, node.text, node.image);
}

void frmMain::NodeRemoved(const std::string& key) {
    tvColor_.RemoveNode(key);
}

void frmMain::NodeTextChanged(const std::string& key, const std::string& text) {
    tvColor_.SetNodeText(key, text);
}

void frmMain::NodeExpanded(const std::string& key) {
    tvColor_.ExpandNode(key);
}

void frmMain::NodeSelected(const std::string& key) {
    tvColor_.SelectNode(key);
}

void frmMain::EditNodeLabel(const std::string& key) {
    tvColor_.EditLabel(key);
}

// ListPane

float frmMain::ListWidth() const {
    return Scale().ToTwips(WidthOf(lvColor_.Bounds()));
}

void frmMain::AddColumns(const std::vector<ListColumn>& columns) {
    for (const ListColumn& column : columns)
        lvColor_.AddColumn(column.caption, Scale().ToPixels(column.width));
}

void frmMain::ShowSortOrder(int column, bool descending) {
    lvColor_.MarkColumn(column, descending);
}

void frmMain::RowsChanged(int rowCount) {
    lvColor_.SetRowCount(rowCount);
}

void frmMain::SelectRow(int row) {
    lvColor_.SelectRow(row);
}

void frmMain::EnsureRowVisible(int row) {
    lvColor_.EnsureVisible(row);
}

void frmMain::EditRowLabel(int row) {
    lvColor_.EditLabel(row);
}

void frmMain::FinishLabelEdit() {
    tvColor_.FinishEdit();
    lvColor_.FinishEdit();
}

void frmMain::SetListViewMode(ListViewMode mode) {
    lvColor_.SetMode(static_cast<int>(mode));
}

// EditorPane

void frmMain::SetColorName(const std::string& name) {
    editor_.ColorName().SetText(name);
}

void frmMain::SetValueText(std::size_t index, const std::string& text) {
    editor_.Box(index).SetText(text);
}

void frmMain::SelectWholeValueText(std::size_t index) {
    editor_.Box(index).SelectAll();
}

void frmMain::SetSlider(std::size_t index, int position) {
    editor_.SliderAt(index).SetPosition(position);
}

void frmMain::SetLargeSwatch(ColorNumber background) {
    editor_.LargeSwatch().SetColors(background, 0);
}

void frmMain::SetSmallSwatch(ColorNumber background, ColorNumber text) {
    editor_.SmallSwatch().SetColors(background, text);
}

void frmMain::SetSmallSwatchCaption(const std::string& caption) {
    editor_.SmallSwatch().SetText(caption);
}

// BarsPane

void frmMain::SetMenuChecked(int command, bool checked) {
    menu_.SetChecked(command, checked);
}

void frmMain::SetButtonPressed(const std::string& buttonKey, bool pressed) {
    tlbarMain_.SetPressed(buttonKey, pressed);
}

void frmMain::SetButtonVisible(const std::string& buttonKey, bool visible) {
    tlbarMain_.SetVisible(buttonKey, visible);
}

void frmMain::SetToolbarVisible(bool visible) {
    tlbarMain_.Show(visible);
}

void frmMain::SetStatusBarVisible(bool visible) {
    stbarMain_.Show(visible);
}

void frmMain::ArrangeBars() {
    FollowSize();
}

void frmMain::SetInfoPanelText(const std::string& text) {
    stbarMain_.SetPanelText(text);
}

// LayoutPane

LayoutMetrics frmMain::Metrics() const {
    const RECT inner = ClientArea();
    const auto heightWhenShown = [this](const Control& control) {
        return control.IsShown() ? Scale().ToTwips(HeightOf(control.Bounds())) : 0.0F;
    };
    LayoutMetrics metrics;
    metrics.state = ShownState();
    metrics.formWidth = Scale().ToTwips(VisibleWidth(Handle()));
    metrics.innerWidth = Scale().ToTwips(WidthOf(inner));
    metrics.innerHeight = Scale().ToTwips(HeightOf(inner));
    metrics.toolbarHeight = heightWhenShown(tlbarMain_);
    metrics.statusBarHeight = heightWhenShown(stbarMain_);
    metrics.hugeFrameHeight = Scale().ToTwips(editor_.FrameHeight(WidthOf(inner)));
    metrics.smallSwatchHeight = Scale().ToTwips(editor_.SmallSwatchHeight());
    return metrics;
}

void frmMain::ApplyLayout(const MainLayout& layout) {
    tvColor_.Place(Scale().ToPixels(layout.tree));
    imgSplitter_.Place(Scale().ToPixels(layout.splitter));
    lvColor_.Place(Scale().ToPixels(layout.list));
    editor_.FrameControl().Place(Scale().ToPixels(layout.frame));
    editor_.SmallSwatch().Place(Scale().ToPixels(layout.smallSwatch));
    // Nothing may be typed into a box that nobody sees.
    if (!layout.hugeFrameShown && IsChild(editor_.FrameControl().Handle(), GetFocus()) != FALSE)
        SetFocus(lvColor_.Handle());
    if (layout.hugeFrameShown)
        editor_.Arrange();
    editor_.FrameControl().Show(layout.hugeFrameShown);
    editor_.SmallSwatch().Show(!layout.hugeFrameShown);
}

void frmMain::ShowSplitterBar(const TwipsRect& bounds) {
    picSplitter_.Place(Scale().ToPixels(bounds));
    SetWindowPos(picSplitter_.Handle(), HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void frmMain::HideSplitterBar() {
    picSplitter_.Show(false);
}

// DragPane

void frmMain::ShowDrag(float left, float top, DragMode picture) {
    drag_.Show(left, top, picture);
}

void frmMain::MarkDropNode(const std::string& key) {
    drag_.Mark(key);
}

void frmMain::ScrollTree(TreeEdge towards) {
    drag_.Scroll(towards);
}

void frmMain::EndDrag() {
    drag_.End();
}

// MainView

// The visible part of the border is known only once the window is on the screen.
void frmMain::ShowWindow() {
    Show();
    LayOut();
    SetTimer(Handle(), kBannerTimer, kBannerInterval, nullptr);
}

void frmMain::SetBanner(int index) {
    picSponsor_.SetPicture(banners_.Picture(index));
    PlaceBanner();
}

// The banner stands behind the last toolbar button while there is room; it never covers anything.
void frmMain::PlaceBanner() {
    const int gap = Scale().FromDesign(4);
    const int bottom = tlbarMain_.Height() - gap / 2;
    const int right = static_cast<int>(ClientArea().right) - gap;
    const int left = right - picSponsor_.WidthForHeight(bottom - gap / 2);
    const bool fits = picSponsor_.HasPicture() && tlbarMain_.IsShown() &&
                      left >= tlbarMain_.RightmostButtonEdge() + gap;
    if (fits) {
        picSponsor_.Place({left, gap / 2, right, bottom});
        SetWindowPos(picSponsor_.Handle(), HWND_TOP, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    picSponsor_.Show(fits);
}

void frmMain::StopBannerTimer() {
    KillTimer(Handle(), kBannerTimer);
}

void frmMain::SetWaiting(bool waiting) {
    if (waiting)
        waiting_.emplace();
    else
        waiting_.reset();
}

// A disabled window waits for a question, and its user's answer.
bool frmMain::ShowsWaiting() const noexcept {
    return waiting_.has_value() && IsWindowEnabled(Handle()) != FALSE;
}

void frmMain::EndProgram() {
    EndMenu(); // the loop of an open menu would take the end for itself
    PostQuitMessage(0);
}
