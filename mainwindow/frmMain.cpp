#include "mainwindow/frmMain.h"

#include "mainwindow/panes/NodeImages.h"
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

const std::vector<std::string> kNodeImages = {NodeImages::Group, "Colbrush", NodeImages::Color,
                                              NodeImages::Library};

constexpr UINT_PTR kBannerTimer = 1;
constexpr UINT kBannerInterval = 5000; // milliseconds
constexpr UINT_PTR kSecondTimer = 3;
constexpr UINT kSecond = 1000;

constexpr const char* kBannerName = "Banner"; // in every language

} // namespace

frmMain::frmMain(ErrorSink& errors, const BannerPictures& banners)
    : FormOf(kDesign, errors), banners_(banners), shortcuts_(MainBars::ShortcutKeys()),
      imlToolbarIcons_("imlToolbarIcons", MainBars::ToolbarIcons()),
      imlView_("imlView", {NodeImages::Color}), imlViewSmall_("imlViewSmall", kNodeImages),
      tlbarMain_(Add<Toolbar>(At("tlbarMain", IDC_tlbarMain), imlToolbarIcons_,
                              MainBars::ToolbarButtonDesigns())),
      tvColor_(Add<TreeView>(At("tvColor", IDC_tvColor), imlViewSmall_)),
      imgSplitter_(Add<Splitter>(At("imgSplitter", IDC_imgSplitter))),
      lvColor_(Add<ListView>(At("lvColor", IDC_lvColor),
                             ListView::Images{imlView_, imlViewSmall_, NodeImages::Color})),
      editor_(*this), stbarMain_(Add<StatusBar>(At("stbarMain", IDC_stbarMain))),
      picSponsor_(Add<PictureBox>(At("picSponsor", IDC_picSponsor))),
      picSplitter_(Add<SolidBar>(At("picSplitter", IDC_picSplitter))),
      lblDrag_(Add<Label>(At("lblDrag", IDC_lblDrag))),
      bars_({.menu = menu_, .toolbar = tlbarMain_, .statusBar = stbarMain_}),
      tree_(tvColor_, *this), list_(lvColor_, Scale()), area_(*this, {.toolbar = tlbarMain_,
                                                                      .tree = tvColor_,
                                                                      .splitter = imgSplitter_,
                                                                      .list = lvColor_,
                                                                      .editor = editor_,
                                                                      .statusBar = stbarMain_,
                                                                      .splitterBar = picSplitter_}),
      drag_(*this, {.list = lvColor_, .tree = tvColor_, .label = lblDrag_}) {
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
    picSponsor_.SetText(kBannerName);
    lblDrag_.Show(false);
    bars_.onArranged = [this] { PlaceBanner(); };
    bars_.ArrangeBars();
}

// The control is announced by the name, which the language file may replace.
HiddenCaption frmMain::Announce(Control& control, const char* captionName, const char* name) {
    control.SetText(name);
    return {captionName, name, [&control](const std::string& text) { control.SetText(text); }};
}

MainView frmMain::View() {
    return {.frame = *this,
            .tree = tree_,
            .list = list_,
            .editor = editor_,
            .bars = bars_,
            .layout = area_,
            .drag = drag_};
}

void frmMain::Attach(const MainEvents& events) {
    events_.emplace(events);
    tree_.Attach(events.tree);
    list_.Attach(events.rows, events.list, events.hints);
    editor_.Attach(events.editor);
    area_.Attach(events.layout);
    drag_.Attach(events.drag);
    ConnectCommands(events.frame);
    picSponsor_.onClick = [&banner = events.banner] { banner.BannerClicked(); };
    OnLayout(); // the list's columns are made for the width that it has in the window as designed
}

void frmMain::ConnectCommands(MainFrameEvents& events) {
    tlbarMain_.onCommand = [&events](int command) { events.RunCommand(command); };
    tvColor_.onEditRequested = [&events] { events.RunCommand(IDM_mnuColorRenameNode); };
    editor_.OnSwatchDoubleClick([&events] { events.RunCommand(IDM_mnuColorChange); });
    tvColor_.onContextMenu = [this](POINT at) { OpenColorMenu(at); };
    list_.onHintLink = [&events](const HintLine& line) {
        if (line.command != 0)
            events.RunCommand(line.command);
        else
            events.SampleChosen(line.file);
    };
    lvColor_.onContextMenu = [this](POINT at) { OpenColorMenu(at); };
}

void frmMain::OpenColorMenu(POINT at) const {
    menu_.OpenPopup(IDM_mnuColor, at);
}

MessageResult frmMain::OnMessage(const WindowMessage& message) {
    if (!events_)
        return Form::OnMessage(message);
    switch (message.id) {
    case WM_SIZE:
        bars_.ArrangeBars();
        events_->layout.Resized();
        return 0;
    case WM_PAINT:
        events_->editor.Repainted();
        return {};
    case WM_TIMER:
        if (message.wParam == DragTracker::kTimer)
            drag_.Tick();
        else if (message.wParam == kSecondTimer)
            events_->frame.SecondPassed();
        else
            events_->banner.BannerTicked();
        return 0;
    case WM_DROPFILES: {
        const std::vector<std::string> files = TakeDroppedFiles(message.wParam);
        // The shell drops them also while a question is open, in the middle of a command.
        if (IsWindowEnabled(message.window) != FALSE)
            events_->frame.FilesDropped(files);
        return 0;
    }
    case WM_SETCURSOR: // the controls ask here before they show their own
        if (!ShowsWaiting())
            return {};
        WaitCursor::Show();
        return TRUE;
    case WM_ENDSESSION: // the session ends without asking for the close box
        if (message.wParam != FALSE)
            events_->frame.SessionEnding();
        return 0;
    default:
        return Form::OnMessage(message);
    }
}

void frmMain::OnMenuCommand(int command) {
    if (events_ && MainBars::IsMenuCommand(command))
        events_->frame.RunCommand(command);
}

void frmMain::OnCancelKey() {
    if (events_)
        events_->frame.EscapePressed();
}

void frmMain::OnCloseBox() {
    if (events_)
        events_->frame.WindowClosing();
}

bool frmMain::TranslateShortcut(MSG& message) {
    if (drag_.TakeKey(message))
        return true;
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
        editor_.FocusFirstBox();
    else
        SetFocus(panes[next]);
}

void frmMain::OnScaleChanged() {
    bars_.ArrangeBars();
    if (events_)
        events_->layout.ScaleChanged();
}

void frmMain::OnLayout() {
    bars_.ArrangeBars();
    if (events_)
        events_->layout.Resized();
    if (editor_.FrameControl().IsShown()) // a hidden one is arranged when it is shown
        editor_.Arrange();
}

// MainFrame

// The visible part of the border is known only once the window is on the screen.
void frmMain::ShowWindow() {
    menu_.BringUpToDate();
    Show();
    LayOut();
    SetTimer(Handle(), kBannerTimer, kBannerInterval, nullptr);
    SetTimer(Handle(), kSecondTimer, kSecond, nullptr);
}

void frmMain::SetBanner(int index) {
    picSponsor_.SetPicture(banners_.Picture(index), banners_.IsLink(index));
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
