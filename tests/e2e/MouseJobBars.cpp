// The steps of the mouse's job that work with splitter, bars, menus and the window's size.

#include "tests/e2e/MouseJob.h"

#include "mainwindow/Layout.h"
#include "mainwindow/ToolbarTable.h"
#include "platform/WindowGeometry.h"
#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteDialogs.h"

#include <algorithm>
#include <cstdlib>
#include <set>

namespace {

constexpr int kFar = 2000; // a drag past every edge of the window, pixels
constexpr int kBack = 700;

// Where a child stands in its form, in pixels.
RECT PlaceOf(const RemoteWindow& form, const RemoteWindow& child) {
    RECT bounds = child.Bounds();
    const POINT origin = form.ToScreen({0, 0});
    OffsetRect(&bounds, -origin.x, -origin.y);
    return bounds;
}

int Width(const RECT& bounds) {
    return static_cast<int>(bounds.right - bounds.left);
}

bool AreSame(const std::vector<RECT>& left, const std::vector<RECT>& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const RECT& one, const RECT& other) { return EqualRect(&one, &other); });
}

struct Bar {
    const char* name;
    const char* entry; // of the view menu
    ToolbarGroup group;
};

constexpr std::array kBars = {
    Bar{"standard bar", "mnuViewBarStandards", ToolbarGroup::Standard},
    Bar{"color bar", "mnuViewBarColor", ToolbarGroup::Color},
    Bar{"list view bar", "mnuViewBarListview", ToolbarGroup::ListView},
    Bar{"SolidWorks bar", "mnuViewBarSolidWorks", ToolbarGroup::SolidWorks},
};

constexpr std::array kViews = {IDM_mnuViewColorLargeIcons, IDM_mnuViewColorSmallIcons,
                               IDM_mnuViewColorList, IDM_mnuViewColorDetails};

} // namespace

void MouseJob::WorkBars() {
    Report().Step("drag the splitter past the left edge", [this] { DragSplitterBy(-kFar); });
    Report().Step("drag the splitter past the right edge", [this] { DragSplitterBy(kFar); });
    Report().Step("drag the splitter back", [this] { DragSplitterBack(); });
    for (const Bar& bar : kBars)
        Report().Step(std::string("switch the ") + bar.name,
                      [this, &bar] { SwitchBar(bar.entry, bar.group); });
    Report().Step("switch the toolbar off",
                  [this] { SwitchWhole("mnuViewToolbar", IDC_tlbarMain); });
    Report().Step("switch the toolbar on",
                  [this] { SwitchWhole("mnuViewToolbar", IDC_tlbarMain); });
    Report().Step("switch the status bar on",
                  [this] { SwitchWhole("mnuViewStatusBar", IDC_stbarMain); });
    for (const std::size_t hidden : {1U, 3U})
        Report().Step(std::string("switch the ") + kBars.at(hidden).name + " back",
                      [&] { SwitchBar(kBars.at(hidden).entry, kBars.at(hidden).group); });
    MenuStep("open the menu of New", [this] { OpenButtonMenu(IDM_mnuColorNewColor); });
    Report().Step("choose its entries", [this] { ChooseNewEntries(); });
    MenuStep("open the menu of Delete", [this] { OpenButtonMenu(IDM_mnuColorDelColor); });
    Report().Step("choose its entries too", [this] { ChooseDeleteEntries(); });
    for (const int view : kViews)
        Report().Step("list view " + std::to_string(view - kViews.front() + 1),
                      [this, view] { ShowView(view); });
    MenuStep("color menu by the right button", [this] { OpenColorMenuByMouse(); });
    MenuStep("color menu by keyboard in the list", [this] {
        Main().List().ClickRow("Pearl");
        RealInput::PressWithShift(VK_F10);
    });
    MenuStep("color menu by keyboard in the tree", [this] {
        ClickGroup("Metals");
        RealInput::PressWithShift(VK_F10);
    });
}

void MouseJob::DragSplitterBy(int pixels) {
    const RemoteWindow form = Main().Window();
    const RemoteWindow splitter = Main().Control(IDC_imgSplitter);
    const RemoteWindow bar = Main().Control(IDC_picSplitter);
    const int treeBefore = Width(Main().Control(IDC_tvColor).Bounds());
    pointer_ = splitter.Centre();
    RealInput::MoveTo(pointer_);
    RealInput::PressLeft();
    CarryTo({pointer_.x + pixels, pointer_.y + 30});
    const float limit = pixels < 0 ? Layout::kSmallestPane
                                   : Twips(VisibleWidth(form.Handle())) - Layout::kSmallestPane;
    const auto left = [&] { return Twips(static_cast<int>(PlaceOf(form, bar).left)); };
    Report().CheckBecomes("left edge of the bar, twips", left, limit);
    Report().Check(bar.IsVisible(), "the bar is shown");
    Report().CheckEqual("width of the tree meanwhile, pixels",
                        Width(Main().Control(IDC_tvColor).Bounds()), treeBefore);
    RealInput::ReleaseLeft();
    Report().CheckBecomes(
        "width of the tree, twips",
        [this] { return Twips(Width(Main().Control(IDC_tvColor).Bounds())); }, limit);
    Report().Check(PollUntil([&] { return !bar.IsVisible(); }), "the bar is gone");
}

void MouseJob::DragSplitterBack() {
    const RemoteWindow splitter = Main().Control(IDC_imgSplitter);
    const POINT from = splitter.Centre();
    const int before = Width(Main().Control(IDC_tvColor).Bounds());
    RealInput::Drag(from, {from.x - kBack, from.y});
    Report().Check(PollUntil([&] {
                       const int width = Width(Main().Control(IDC_tvColor).Bounds());
                       return std::abs(width - (before - kBack)) <= 2;
                   }),
                   "the tree is narrower by as much");
}

// Exactly the buttons of the group change.
void MouseJob::SwitchBar(const std::string& entry, ToolbarGroup group) {
    const auto shown = [this] {
        std::set<std::string> keys;
        for (const ToolbarRow& row : kToolbarRows)
            if (row.command != 0 && Main().Toolbar().IsShown(row.command))
                keys.insert(row.key);
        return keys;
    };
    std::set<std::string> expected = shown();
    for (const ToolbarRow& row : kToolbarRows)
        if (row.command != 0 && row.group == group && expected.erase(row.key) == 0)
            expected.insert(row.key);
    Main().ChooseFromMenu("mnuView", entry);
    Report().Check(PollUntil([&] { return shown() == expected; }),
                   entry + " switches its buttons and no others");
}

void MouseJob::SwitchWhole(const std::string& entry, int control) {
    const bool before = Main().Control(control).IsVisible();
    Main().ChooseFromMenu("mnuView", entry);
    Report().CheckBecomes(
        entry, [&] { return Main().Control(control).IsVisible(); }, !before);
    const int bottomOfToolbar =
        Main().Control(IDC_tlbarMain).IsVisible()
            ? static_cast<int>(PlaceOf(Main().Window(), Main().Control(IDC_tlbarMain)).bottom)
            : 0;
    Report().CheckBecomes(
        "top of the tree",
        [this] {
            return static_cast<int>(PlaceOf(Main().Window(), Main().Control(IDC_tvColor)).top);
        },
        bottomOfToolbar);
}

void MouseJob::MenuStep(const std::string& name, const std::function<void()>& open) {
    Report().Step(name, [&] {
        open();
        WaitForMenu();
    });
    Report().Check(ActUntil([] { RealInput::PressKey(VK_ESCAPE); },
                            [this] { return !Main().Window().HasMenuOpen(); }),
                   "Escape closes the menu");
}

void MouseJob::WaitForMenu() {
    Report().Check(PollUntil([this] { return Main().Window().HasMenuOpen(); }), "the menu is open");
}

void MouseJob::OpenButtonMenu(int button) {
    Main().Toolbar().ClickArrow(button);
}

void MouseJob::ChooseFromButtonMenu(int button, char accessKey) {
    OpenButtonMenu(button);
    WaitForMenu();
    RealInput::PressKey(static_cast<WORD>(accessKey));
}

void MouseJob::ChooseNewEntries() {
    for (const auto& [accessKey, prompt] :
         {std::pair{'L', "Name of the new library:"}, std::pair{'G', "Name of the new group:"},
          std::pair{'C', "Name of the new color:"}}) {
        ChooseFromButtonMenu(IDM_mnuColorNewColor, accessKey);
        Report().CheckEqual("prompt", RemoteDialogs::CancelInputBox(Main().Window()),
                            std::string(prompt));
        ClickGroup("Gems"); // a cancelled group leaves the library selected
    }
}

void MouseJob::ChooseDeleteEntries() {
    for (const auto& [accessKey, label] :
         {std::pair{'L', "Library:\r\nMaterials"}, std::pair{'G', "Group:\r\nGems"},
          std::pair{'C', "Color:\r\nEmerald"}}) {
        ChooseFromButtonMenu(IDM_mnuColorDelColor, accessKey);
        const std::string text = RemoteDialogs::AnswerMessageBox(Main().Window(), IDCANCEL).text;
        Report().Check(text.find(label) != std::string::npos, "asked: " + text);
        ClickGroup("Gems");
    }
    CheckGroup("Gems");
}

void MouseJob::ShowView(int command) {
    Main().ClickButton(command);
    for (const int view : kViews)
        Report().CheckBecomes(
            "pressed", [&] { return Main().Toolbar().IsPressed(view); }, view == command);
    const HWND list = Main().Control(IDC_lvColor).Handle();
    constexpr std::array<LONG_PTR, 4> kStyles = {LVS_ICON, LVS_SMALLICON, LVS_LIST, LVS_REPORT};
    Report().CheckBecomes(
        "style of the list", [&] { return GetWindowLongPtrW(list, GWL_STYLE) & LVS_TYPEMASK; },
        kStyles.at(static_cast<std::size_t>(command - kViews.front())));
}

void MouseJob::OpenColorMenuByMouse() {
    RealInput::ClickRight(Main().List().PointOfRow("Ruby"));
    Report().CheckBecomes(
        "selected color", [this] { return Main().List().SelectedNames(); }, Names{"Ruby"});
}

void MouseJob::WorkSizes() {
    Report().Step("make the window tiny", [this] { MakeTiny(); });
    Report().Step("maximise the window", [this] { Maximise(); });
    Report().Step("restore the window", [this] { Restore(); });
    Report().Step("large editor", [this] { ShowLargeEditor(true); });
    Report().Step("large editor in a low and narrow window",
                  [this] { Main().Window().Place(kMargin, kMargin, 420, 360); });
    Report().Step("small editor again", [this] {
        PlaceMain();
        ShowLargeEditor(false);
    });
}

void MouseJob::MakeTiny() {
    Main().Window().Place(kMargin, kMargin, 10, 10);
    Report().CheckBecomes(
        "the window is as small as the system lets it be",
        [this] { return Width(Main().Window().Bounds()) < 2 * GetSystemMetrics(SM_CXMINTRACK); },
        true);
    const RECT tree = PlaceOf(Main().Window(), Main().Control(IDC_tvColor));
    Report().Check(Twips(static_cast<int>(tree.bottom - tree.top)) >=
                       Layout::kSmallestPaneHeight - 1,
                   "the panes keep their smallest height");
    Report().Check(Twips(Width(tree)) <=
                       Twips(Width(Main().Window().Bounds())) - Layout::kSmallestPane + 1,
                   "the splitter stays inside");
}

std::vector<RECT> MouseJob::PanePlaces() const {
    std::vector<RECT> places;
    for (const int id : {IDC_tvColor, IDC_lvColor, IDC_imgSplitter, IDC_lblActiveColorSmall})
        places.push_back(PlaceOf(Main().Window(), Main().Control(id)));
    return places;
}

void MouseJob::Maximise() {
    PlaceMain();
    Report().Check(PollUntil([this] { return Width(Main().Window().Bounds()) == kWidth; }),
                   "the window has its size again");
    const std::vector<RECT> before = PanePlaces();
    Main().Window().Maximise();
    Report().Check(PollUntil([this] { return Main().Window().IsMaximised(); }),
                   "the window is maximised");
    Report().Check(AreSame(PanePlaces(), before), "tree, list, splitter and swatch stay");
    normalPlaces_ = before;
}

void MouseJob::Restore() {
    Main().Window().Restore();
    Report().Check(PollUntil([this] { return !Main().Window().IsMaximised(); }),
                   "the window is restored");
    Report().Check(PollUntil([this] { return AreSame(PanePlaces(), normalPlaces_); }),
                   "the panes are laid out as before");
}

void MouseJob::ShowLargeEditor(bool shown) {
    Main().ClickButton(IDM_mnuViewHugeColorDialog);
    Report().CheckBecomes(
        "large editor", [this] { return Main().IsLargeEditorShown(); }, shown);
}

void MouseJob::WorkInGerman() {
    Report().Step("change over to German", [this] { ChooseGerman(); });
    for (const char accessKey : {'D', 'F', 'A', 'S', 'O', 'H'})
        MenuStep(std::string("menu ") + accessKey + " in German", [this, accessKey] {
            SetForegroundWindow(Main().Window().Handle());
            RealInput::PressWithAlt(static_cast<WORD>(accessKey));
        });
    MenuStep("menu of Delete in German", [this] { OpenButtonMenu(IDM_mnuColorDelColor); });
    Report().Step("ask to delete a group in German", [this] { AskToDeleteTheGroup(); });
    Report().Step("keep it and drop a color on the library in German", [this] {
        RemoteDialogs::AnswerMessageBox(Main().Window(), IDCANCEL);
        PickUp("Gems", "Pearl");
        CarryTo(Main().Tree().PointOfRoot(0));
        Drop();
        CheckNote("Farbe", "Farben k\u00F6nnen nur auf eine Gruppe gezogen werden.");
    });
    Report().Step("close the note in German", [this] { CloseTheNote(); });
    Report().Step("large editor in German", [this] { ShowLargeEditor(true); });
}

void MouseJob::ChooseGerman() {
    SetForegroundWindow(Main().Window().Handle());
    RealInput::PressWithAlt('O');
    WaitForMenu();
    RealInput::PressKey('L');
    RealInput::PressKey('G');
    Report().CheckBecomes(
        "caption of the editor", [this] { return Main().Control(IDC_fraShowColor).Text(); },
        std::string("Aktive Farbe"));
}

void MouseJob::AskToDeleteTheGroup() {
    ClickGroup("Plastics");
    ChooseFromButtonMenu(IDM_mnuColorDelColor, 'G');
    const RemoteDialogs::Message question = RemoteDialogs::ReadMessageBox(Main().Window());
    Report().CheckEqual("title", question.title, std::string("Achtung"));
    Report().Check(question.text.find("Gruppe:\r\nPlastics\r\nBlack plastic (0DG2E12)\r\n") !=
                       std::string::npos,
                   "the question names the group and its colors");
}
