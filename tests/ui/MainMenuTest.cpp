// Rules: Layout, bars and views
#include "common/RuntimeError.h"
#include "mainwindow/CommandTable.h"
#include "platform/Utf16.h"
#include "tests/ui/MainFormTest.h"

#include <algorithm>
#include <array>
#include <chrono>
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

TEST_F(MainMenu, EndOfTheProgramLeavesAnOpenMenu) {
    static frmMain* ending;
    static std::chrono::steady_clock::time_point deadline;
    static bool isEnded;
    static bool isLate;
    ending = &form;
    deadline = std::chrono::steady_clock::now() + kPatience;
    isEnded = isLate = false;
    form.ShowWindow();
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) {
        if (MenuIsOpen() && !std::exchange(isEnded, true))
            ending->EndProgram();
        isLate = std::chrono::steady_clock::now() > deadline;
        if (isLate)
            EndMenu(); // which the program should have done
    });
    SendMessageW(Child(IDC_tvColor), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Child(IDC_tvColor)),
                 -1);
    KillTimer(nullptr, timer);
    EXPECT_TRUE(isEnded);
    EXPECT_FALSE(isLate);
    MSG quit{};
    EXPECT_NE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), FALSE);
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

TEST_F(MainMenu, EveryShortcutIsShownBuiltInInGerman) {
    const HMENU bar = GetMenu(form.Handle());
    std::map<int, std::string> found;
    for (const MenuRow& row : MenuRows()) {
        const std::string text = MenuText(bar, row.command);
        if (text.find('\t') != std::string::npos)
            found[row.command] = text.substr(text.find('\t') + 1);
    }
    const std::map<int, std::string> expected = {
        {IDM_mnuFileNew, "Strg+N"},     {IDM_mnuFileOpen, "Strg+O"},
        {IDM_mnuFileSave, "Strg+S"},    {IDM_mnuFileSaveAs, "Strg+Umschalt+S"},
        {IDM_mnuColorDelColor, "Entf"}, {IDM_mnuColorCopy, "Strg+C"},
        {IDM_mnuColorCut, "Strg+X"},    {IDM_mnuColorPaste, "Strg+V"},
        {IDM_mnuHlpShowReadme, "F1"}};
    EXPECT_EQ(found, expected);
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
    EXPECT_EQ(GetMenuItemCount(GetSubMenu(bar, 0)), 8);
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
