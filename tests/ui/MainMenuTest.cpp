// Rules: Layout, bars and views
#include "common/RuntimeError.h"
#include "mainwindow/CommandTable.h"
#include "platform/Utf16.h"
#include "resources/controls.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/MessageCounter.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <utility>

namespace {

// Presses or releases Ctrl for this thread.
void SetCtrl(bool down) {
    std::array<BYTE, 256> keys{};
    GetKeyboardState(keys.data());
    keys[VK_CONTROL] = down ? 0x80 : 0;
    SetKeyboardState(keys.data());
}

using MainMenu = MainFormTest;

TEST_F(MainMenu, HoldsEveryEntryOfTheTableInItsOrder) {
    const HMENU bar = GetMenu(form.Handle());
    std::vector<int> found;
    const std::function<void(HMENU)> walk = [&](HMENU menu) {
        for (int place = 0; place < GetMenuItemCount(menu); ++place) {
            MENUITEMINFOW item{};
            item.cbSize = sizeof item;
            item.fMask = MIIM_ID | MIIM_SUBMENU;
            GetMenuItemInfoW(menu, static_cast<UINT>(place), TRUE, &item);
            found.push_back(static_cast<int>(item.wID));
            if (item.hSubMenu != nullptr)
                walk(item.hSubMenu);
        }
    };
    walk(bar);
    std::vector<int> expected;
    for (const MenuRow& row : MenuRows())
        expected.push_back(row.command);
    EXPECT_EQ(found, expected);
}

// Each drawing of the bar calculates the window's frame.
TEST_F(MainMenu, BarIsDrawnOnceForAllTitlesThatAreNamedBeforeTheWindowIsSeen) {
    const MessageCounter counter(form.Handle());
    const auto nameTitles = [this](const std::string& end) {
        for (const char* title : {"mnuFile", "mnuColor", "mnuView", "mnuOptions"})
            Control(title)->SetProperty("Caption", title + end);
        return 4;
    };
    nameTitles(" one");
    EXPECT_EQ(counter.Count(WM_NCCALCSIZE), 0);
    form.ShowWindow();
    const int whenSeen = counter.Count(WM_NCCALCSIZE);
    EXPECT_GE(whenSeen, 1);
    const int titles = nameTitles(" two");
    EXPECT_GE(counter.Count(WM_NCCALCSIZE), whenSeen + titles) << "each is seen at once";
}

TEST_F(MainMenu, EveryCommandReachesRunCommand) {
    std::vector<int> expected;
    for (const MenuRow& row : MenuRows()) {
        SendMessageW(form.Handle(), WM_COMMAND, static_cast<WPARAM>(row.command), 0);
        if (row.run != nullptr)
            expected.push_back(row.command);
    }
    EXPECT_EQ(events.commands, expected);
}

bool MenuIsOpen() {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    return (info.flags & GUI_INMENUMODE) != 0;
}

// What became of a menu.
struct MenuStay {
    bool wasOpen = false;
    bool wasLate = false; // it had to be closed, because the step did not
};

// Opens the menu of a control, by its key or at a point of the screen, and takes a step, once,
// while it is open.
MenuStay TakeStepInMenu(HWND control, std::function<void()> stepToTake, LPARAM at = -1) {
    static std::function<void()> step;
    static std::chrono::steady_clock::time_point deadline;
    static MenuStay stay;
    step = std::move(stepToTake);
    deadline = std::chrono::steady_clock::now() + kPatience;
    stay = {};
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) {
        if (MenuIsOpen() && !std::exchange(stay.wasOpen, true))
            step();
        stay.wasLate = std::chrono::steady_clock::now() > deadline;
        if (stay.wasLate)
            EndMenu();
    });
    SendMessageW(control, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(control), at);
    KillTimer(nullptr, timer);
    return stay;
}

TEST_F(MainMenu, EndOfTheProgramLeavesAnOpenMenu) {
    form.ShowWindow();
    const MenuStay stay = TakeStepInMenu(Child(IDC_tvColor), [this] { form.EndProgram(); });
    EXPECT_TRUE(stay.wasOpen);
    EXPECT_FALSE(stay.wasLate);
    MSG quit{};
    EXPECT_NE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), FALSE);
}

TEST_F(MainMenu, EndOfTheSessionAndTheCloseBoxAreReportedWhileAMenuIsOpen) {
    form.ShowWindow();
    std::vector<std::string> reported;
    const MenuStay stay = TakeStepInMenu(Child(IDC_tvColor), [&] {
        events.lines.clear();
        SendMessageW(form.Handle(), WM_ENDSESSION, FALSE, 0); // another program has refused
        SendMessageW(form.Handle(), WM_CLOSE, 0, 0);
        SendMessageW(form.Handle(), WM_ENDSESSION, TRUE, 0);
        reported = events.lines;
        EndMenu();
    });
    EXPECT_TRUE(stay.wasOpen);
    EXPECT_FALSE(stay.wasLate);
    EXPECT_EQ(reported, (std::vector<std::string>{"closing", "session ending"}));
}

TEST_F(MainMenu, RightClickOnALineOfTheEmptyListOpensTheMenuOfColors) {
    events.hintLines = {{.text = "Nothing is open."}, {.text = "Open", .command = IDM_mnuFileOpen}};
    form.ShowWindow();
    view.list.RowsChanged(0);
    for (const int line : {1, 2}) {
        const HWND label = GetDlgItem(Child(IDC_lvColor), line);
        ASSERT_NE(label, nullptr);
        const MenuStay stay = TakeStepInMenu(
            label, [] { EndMenu(); }, MAKELPARAM(200, 200));
        EXPECT_TRUE(stay.wasOpen) << line;
        EXPECT_FALSE(stay.wasLate) << line;
    }
    EXPECT_TRUE(events.commands.empty());
}

TEST_F(MainMenu, UnknownNumberRunsNothing) {
    SendMessageW(form.Handle(), WM_COMMAND, IDOK, 0);
    SendMessageW(form.Handle(), WM_COMMAND, IDCANCEL, 0);
    SendMessageW(form.Handle(), WM_COMMAND, 4711, 0);
    EXPECT_TRUE(events.commands.empty());
    EXPECT_EQ(events.lines, std::vector<std::string>{"escape"}) << "the key, by its number";
}

TEST_F(MainMenu, CaptionIsShownAtOnceAndKeepsTheShortcut) {
    const HMENU bar = GetMenu(form.Handle());
    Control("mnuFileSave")->SetProperty("Caption", "&Save");
    EXPECT_TRUE(MenuText(bar, IDM_mnuFileSave).starts_with("&Save\t"));
    EXPECT_EQ(Control("mnuFileSave")->Property("Caption"), "&Save");
    Control("mnuHlpAbout")->SetProperty("Caption", "&About ...");
    EXPECT_EQ(MenuText(bar, IDM_mnuHlpAbout), "&About ...");
}

std::string GermanKeyName(int key) {
    if (key == VK_DELETE)
        return "Entf";
    if (key >= VK_F1 && key <= VK_F12)
        return "F" + std::to_string(key - VK_F1 + 1);
    return key >= 'A' && key <= 'Z' ? std::string(1, static_cast<char>(key))
                                    : "a key that has no German name here";
}

std::string GermanName(const Shortcut& shortcut) {
    return (shortcut.ctrl ? "Strg+" : "") + std::string(shortcut.shift ? "Umschalt+" : "") +
           GermanKeyName(shortcut.key);
}

TEST_F(MainMenu, EveryShortcutIsShownBuiltInInGerman) {
    const HMENU bar = GetMenu(form.Handle());
    std::map<std::string, std::string> found;
    std::map<std::string, std::string> expected;
    for (const MenuRow& row : MenuRows()) {
        const std::string text = MenuText(bar, row.command);
        if (text.find('\t') != std::string::npos)
            found[row.name] = text.substr(text.find('\t') + 1);
        if (row.shortcut.key != 0)
            expected[row.name] = GermanName(row.shortcut);
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(found["mnuFileSaveAs"], "Strg+Umschalt+S");
}

TEST_F(MainMenu, NameOfAKeyIsShownAtOnceInEveryShortcutWithIt) {
    const HMENU bar = GetMenu(form.Handle());
    Control("keyCtrl")->SetProperty("Caption", "Ctrl");
    EXPECT_TRUE(MenuText(bar, IDM_mnuFileSave).ends_with("\tCtrl+S"));
    EXPECT_TRUE(MenuText(bar, IDM_mnuFileSaveAs).ends_with("\tCtrl+Umschalt+S"));
    EXPECT_EQ(Control("keyCtrl")->Property("Caption"), "Ctrl");
    EXPECT_THROW(Control("keyCtrl")->SetProperty("Text", "x"), RuntimeError);
}

TEST_F(MainMenu, TitleKeepsItsMenuWhenItsCaptionChanges) {
    Control("mnuFile")->SetProperty("Caption", "&File");
    const HMENU bar = GetMenu(form.Handle());
    std::array<wchar_t, 32> text{};
    GetMenuStringW(bar, 0, text.data(), 32, MF_BYPOSITION);
    EXPECT_STREQ(text.data(), L"&File");
    EXPECT_EQ(GetMenuItemCount(GetSubMenu(bar, 0)), 14);
}

TEST_F(MainMenu, SeparatorStaysOneWhenItsCaptionIsSet) {
    Control("mnuFileHR")->SetProperty("Caption", "x");
    const UINT state = GetMenuState(GetMenu(form.Handle()), IDM_mnuFileHR, MF_BYCOMMAND);
    EXPECT_NE(state & MF_SEPARATOR, 0U);
}

TEST_F(MainMenu, CheckMarkFollows) {
    const HMENU bar = GetMenu(form.Handle());
    view.bars.SetMenuChecked(IDM_mnuViewToolbar, true);
    EXPECT_NE(GetMenuState(bar, IDM_mnuViewToolbar, MF_BYCOMMAND) & MF_CHECKED, 0U);
    view.bars.SetMenuChecked(IDM_mnuViewToolbar, false);
    EXPECT_EQ(GetMenuState(bar, IDM_mnuViewToolbar, MF_BYCOMMAND) & MF_CHECKED, 0U);
}

TEST_F(MainMenu, MenuEntryHasNoToolTip) {
    EXPECT_THROW(Control("mnuFile")->SetProperty("ToolTipText", "x"), RuntimeError);
}

TEST_F(MainMenu, ShortcutRunsItsCommand) {
    SetCtrl(true);
    MSG message{Child(IDC_lvColor), WM_KEYDOWN, 'C', 0, 0, {}};
    EXPECT_TRUE(form.TranslateKeys(message));
    SetCtrl(false);
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuColorCopy});
}

TEST_F(MainMenu, KeysOfTextEntryAreLeftToTheTextBox) {
    SetCtrl(true);
    MSG copy{Child(IDC_txtActiveColor), WM_KEYDOWN, 'C', 0, 0, {}};
    static_cast<void>(form.TranslateKeys(copy));
    MSG save{Child(IDC_txtActiveColor), WM_KEYDOWN, 'S', 0, 0, {}};
    EXPECT_TRUE(form.TranslateKeys(save));
    SetCtrl(false);
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuFileSave});
}

TEST_F(MainMenu, KeysThatFindAreTakenFromTextBoxesToo) {
    MSG next{Child(IDC_txtActiveColor), WM_KEYDOWN, VK_F3, 0, 0, {}};
    EXPECT_TRUE(form.TranslateKeys(next));
    SetCtrl(true);
    MSG find{Child(IDC_txtActiveColor), WM_KEYDOWN, 'F', 0, 0, {}};
    EXPECT_TRUE(form.TranslateKeys(find));
    SetCtrl(false);
    EXPECT_EQ(events.commands, (std::vector<int>{IDM_mnuEditFindNext, IDM_mnuEditFind}));
}

// Anywhere else the key would delete a color that the user is not looking at.
TEST_F(MainMenu, DeleteKeyDeletesAColorOnlyWhileTheListHasTheFocus) {
    form.ShowWindow();
    events.layout.SetHugeFrame(true);
    for (const int id : {IDC_tvColor, IDC_txtActiveColor, IDC_sldActiveColor, IDC_lvColor}) {
        SetFocus(Child(id));
        MSG key{Child(id), WM_KEYDOWN, VK_DELETE, 0, 0, {}};
        static_cast<void>(form.TranslateKeys(key)); // takes also what it hands to a control
        EXPECT_EQ(events.commands.size(), id == IDC_lvColor ? 1U : 0U) << id;
    }
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuColorDelColor});
}

TEST_F(MainMenu, DeleteKeyBelongsToTheLabelThatIsEdited) {
    form.ShowWindow();
    view.list.RowsChanged(3);
    view.list.SelectRow(0);
    SetFocus(Child(IDC_lvColor));
    view.list.EditRowLabel(0);
    const auto edit =
        reinterpret_cast<HWND>(SendMessageW(Child(IDC_lvColor), LVM_GETEDITCONTROL, 0, 0));
    ASSERT_NE(edit, nullptr);
    MSG key{edit, WM_KEYDOWN, VK_DELETE, 0, 0, {}};
    static_cast<void>(form.TranslateKeys(key));
    EXPECT_TRUE(events.commands.empty());
}

TEST_F(MainMenu, CloseBoxOnlyReports) {
    SendMessageW(form.Handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(events.lines, std::vector<std::string>{"closing"});
    EXPECT_NE(IsWindow(form.Handle()), FALSE);
}

} // namespace
