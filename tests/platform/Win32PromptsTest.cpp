// Rules: Auxiliary windows
#include "platform/Win32Prompts.h"

#include "platform/DpiScale.h"
#include "platform/Utf16.h"
#include "platform/WindowGeometry.h"
#include "tests/platform/DialogDriver.h"
#include "tests/platform/MessageWindow.h"
#include "tests/platform/PollUntil.h"

#include <gtest/gtest.h>

namespace {

constexpr int kMessageText = 0xFFFF;

int FocusedControl(HWND dialog) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(dialog, nullptr), &info);
    return GetDlgCtrlID(info.hwndFocus);
}

RECT BoundsOf(HWND window) {
    RECT bounds{};
    GetWindowRect(window, &bounds);
    return bounds;
}

// A quarter of the screen, counted from its left and top edge: 0 or 1.
RECT QuarterOfScreen(int column, int row) {
    const RECT screen = WorkAreaOf(nullptr);
    const int width = WidthOf(screen) / 2;
    const int height = HeightOf(screen) / 2;
    const POINT at{screen.left + column * width, screen.top + row * height};
    return {at.x, at.y, at.x + width, at.y + height};
}

// A window that a message box can stand over.
class SeenWindow {
public:
    explicit SeenWindow(const RECT& place)
        : handle_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, place.left, place.top,
                                  WidthOf(place), HeightOf(place), nullptr, nullptr, nullptr,
                                  nullptr)) {}
    SeenWindow(const SeenWindow&) = delete;
    SeenWindow& operator=(const SeenWindow&) = delete;
    ~SeenWindow() { DestroyWindow(handle_); }

    [[nodiscard]] HWND Handle() const noexcept { return handle_; }

private:
    HWND handle_;
};

// Where a message box appears that the window owns.
RECT PlaceOfMessage(const SeenWindow& owner) {
    RECT box{};
    const DialogDriver driver(L"place", [&](HWND dialog) {
        EXPECT_TRUE(PollUntil([&] { return FocusedControl(dialog) != 0; }));
        box = BoundsOf(dialog);
        Press(dialog, IDOK);
    });
    Win32Prompts prompts([&] { return owner.Handle(); });
    EXPECT_EQ(prompts.ShowMessage("Text", MessageStyle::Information, "place"), Answer::Ok);
    return box;
}

class Win32PromptsTest : public testing::Test {
protected:
    Answer ShowMessage(int style, int button) {
        const DialogDriver driver(L"Achtung \u00FC", [=, this](HWND dialog) {
            text = TextOfControl(dialog, kMessageText);
            owner = GetWindow(dialog, GW_OWNER);
            mainWasDisabled = IsWindowEnabled(window.Handle()) == FALSE;
            EXPECT_TRUE(PollUntil([&] { return (focused = FocusedControl(dialog)) != 0; }));
            Press(dialog, button);
        });
        return prompts.ShowMessage("Wirklich l\xC3\xB6schen?\r\n1", style, "Achtung \xC3\xBC");
    }

    MessageWindow window;
    Win32Prompts prompts{[this] { return window.Handle(); }};
    std::wstring text;
    HWND owner = nullptr;
    bool mainWasDisabled = false;
    int focused = 0;
};

} // namespace

TEST_F(Win32PromptsTest, MessageShowsItsTextAndBelongsToTheOwner) {
    EXPECT_EQ(ShowMessage(MessageStyle::Exclamation, IDOK), Answer::Ok);
    EXPECT_EQ(text, L"Wirklich l\u00F6schen?\r\n1");
    EXPECT_EQ(owner, window.Handle());
}

TEST_F(Win32PromptsTest, EachButtonIsItsAnswer) {
    EXPECT_EQ(ShowMessage(MessageStyle::YesNoQuestion, IDYES), Answer::Yes);
    EXPECT_EQ(ShowMessage(MessageStyle::YesNoQuestion, IDNO), Answer::No);
    EXPECT_EQ(ShowMessage(MessageStyle::ConfirmDelete, IDOK), Answer::Ok);
    EXPECT_EQ(ShowMessage(MessageStyle::ConfirmDelete, IDCANCEL), Answer::Cancel);
}

TEST_F(Win32PromptsTest, CancelIsTheDefaultWhenDeletingIsConfirmed) {
    ShowMessage(MessageStyle::ConfirmDelete, IDCANCEL);
    EXPECT_EQ(focused, IDCANCEL);
}

TEST_F(Win32PromptsTest, BoxWithAHugeTextStaysOnTheScreenWithItsButtons) {
    std::string prompt;
    for (int line = 0; line < 5000; ++line)
        prompt += "color " + std::to_string(line) + "\r\n";
    RECT box{};
    const DialogDriver driver(L"huge", [&](HWND dialog) {
        GetWindowRect(dialog, &box);
        text = TextOfControl(dialog, kMessageText);
        Press(dialog, IDCANCEL);
    });
    EXPECT_EQ(prompts.ShowMessage(prompt, MessageStyle::ConfirmDelete, "huge"), Answer::Cancel);
    RECT screen{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    EXPECT_LE(box.bottom - box.top, screen.bottom - screen.top);
    EXPECT_TRUE(text.starts_with(L"color 0\r\ncolor 1\r\n"));
    EXPECT_TRUE(text.ends_with(L"\r\n..."));
}

TEST_F(Win32PromptsTest, BoxWithAnyLongTextHasItsButtonsOnTheScreen) {
    std::string words;
    while (words.size() < 5400)
        words += "word ab ";
    for (const std::string& prompt :
         {words, std::string(300, 'W'), "x " + std::string(300, 'n') + "\r\n",
          std::string(9000, 'n'), std::string(2000, '\n')}) {
        RECT box{};
        RECT button{};
        const DialogDriver driver(L"long", [&](HWND dialog) {
            GetWindowRect(dialog, &box);
            GetWindowRect(GetDlgItem(dialog, IDCANCEL), &button);
            Press(dialog, IDCANCEL);
        });
        EXPECT_EQ(prompts.ShowMessage(prompt, MessageStyle::ConfirmDelete, "long"), Answer::Cancel);
        RECT screen{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
        EXPECT_GE(box.left, screen.left);
        EXPECT_GE(box.top, screen.top);
        EXPECT_LE(box.right, screen.right);
        EXPECT_LE(box.bottom, screen.bottom);
        EXPECT_LT(button.bottom, box.bottom);
    }
}

TEST_F(Win32PromptsTest, TextThatHasRoomIsShownAsItIs) {
    std::string prompt = std::string(100, 'n') + " ";
    while (prompt.size() < 2000)
        prompt += "word ab ";
    std::string shown;
    const DialogDriver driver(L"as it is", [&](HWND dialog) {
        std::wstring all(4000, L'\0');
        GetDlgItemTextW(dialog, kMessageText, all.data(), static_cast<int>(all.size()));
        shown = ToUtf8(all.c_str());
        Press(dialog, IDCANCEL);
    });
    static_cast<void>(prompts.ShowMessage(prompt, MessageStyle::ConfirmDelete, "as it is"));
    EXPECT_EQ(shown, prompt);
}

TEST_F(Win32PromptsTest, MessageBelongsToAPopupThatIsOpenAndTheMainWindowTakesNoInput) {
    HWND popup = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                 window.Handle(), nullptr, nullptr, nullptr);
    SetActiveWindow(popup);
    ShowMessage(MessageStyle::Information, IDOK);
    EXPECT_EQ(owner, popup);
    EXPECT_TRUE(mainWasDisabled);
    EXPECT_NE(IsWindowEnabled(window.Handle()), FALSE);
    DestroyWindow(popup);
}

TEST_F(Win32PromptsTest, MainWindowThatWasDisabledBeforeABoxStaysDisabled) {
    HWND popup = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                 window.Handle(), nullptr, nullptr, nullptr);
    SetActiveWindow(popup);
    EnableWindow(window.Handle(), FALSE); // by a modal window that is over it
    ShowMessage(MessageStyle::Information, IDOK);
    EXPECT_EQ(IsWindowEnabled(window.Handle()), FALSE);
    DestroyWindow(popup);
}

TEST(PlaceOfAMessage, IsTheMiddleOfItsOwner) {
    for (const int column : {0, 1})
        for (const int row : {0, 1}) {
            const RECT owner = QuarterOfScreen(column, row);
            const RECT box = PlaceOfMessage(SeenWindow(owner));
            EXPECT_NEAR(box.left + box.right, owner.left + owner.right, 1);
            EXPECT_NEAR(box.top + box.bottom, owner.top + owner.bottom, 1);
        }
}

TEST(PlaceOfAMessage, IsInsideTheWorkAreaOverAnOwnerAtItsEdge) {
    const RECT screen = WorkAreaOf(nullptr);
    const RECT atStart =
        PlaceOfMessage(SeenWindow({screen.left, screen.top, screen.left + 20, screen.top + 20}));
    EXPECT_EQ(atStart.left, screen.left);
    EXPECT_EQ(atStart.top, screen.top);
    const RECT atEnd = PlaceOfMessage(
        SeenWindow({screen.right - 20, screen.bottom - 20, screen.right, screen.bottom}));
    EXPECT_EQ(atEnd.right, screen.right);
    EXPECT_EQ(atEnd.bottom, screen.bottom);
}

TEST(PlaceOfAMessage, IsLeftToTheUserOnceItIsShown) {
    static HWND other;
    static RECT moved;
    static RECT found;
    const SeenWindow owner(QuarterOfScreen(1, 1));
    const SeenWindow second(QuarterOfScreen(0, 1));
    other = second.Handle();
    moved = QuarterOfScreen(0, 0);
    found = {};
    // In the box's own thread, which alone can make a window of it active.
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR id, DWORD) {
        const HWND box = FindWindowW(nullptr, L"moved");
        if (box == nullptr)
            return;
        KillTimer(nullptr, id);
        SetWindowPos(box, nullptr, moved.left, moved.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        SetActiveWindow(other);
        SetActiveWindow(box);
        found = BoundsOf(box);
        Press(box, IDOK);
    });
    Win32Prompts prompts([&] { return owner.Handle(); });
    static_cast<void>(prompts.ShowMessage("Text", MessageStyle::Information, "moved"));
    KillTimer(nullptr, timer);
    EXPECT_EQ(found.left, moved.left);
    EXPECT_EQ(found.top, moved.top);
}
