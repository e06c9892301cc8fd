// Rules: Auxiliary windows
#include "common/RuntimeError.h"
#include "platform/InputBox.h"
#include "platform/InputBoxControls.h"
#include "platform/MessageLoop.h"
#include "platform/Win32Ticker.h"
#include "support/windows/frmAbout.h"
#include "support/windows/frmProgress.h"
#include "support/windows/frmTxtView.h"
#include "support/windows/PatientProgress.h"
#include "tests/fakes/FakeWaitingClock.h"
#include "tests/ui/GuiObjects.h"
#include "platform/ComApartment.h"
#include "tests/ui/AccessibleNames.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/MessageCounter.h"

#include <algorithm>
#include <thread>

using namespace std::chrono_literals;

namespace {

class RecordingEvents : public AboutEvents, public TextViewerEvents, public ProgressEvents {
public:
    void AboutUnloading() override { lines.emplace_back("unloading"); }
    void SystemInfoClicked() override { lines.emplace_back("system"); }
    void HomepageClicked() override { lines.emplace_back("home"); }
    void MailClicked() override { lines.emplace_back("mail"); }
    void BannerClicked() override { lines.emplace_back("banner"); }
    void EntryChosen(int index) override { lines.push_back("entry " + std::to_string(index)); }
    [[nodiscard]] TwipsSize TextSize(const TwipsSize& area) const override {
        return {std::max(area.width - 1900, 5.0F), std::max(area.height - 625, 5.0F)};
    }
    void ProgressLoading() override { lines.emplace_back("loading"); }
    void StopClicked() override { lines.emplace_back("stop"); }

    std::vector<std::string> lines;
};

class AuxiliaryForms : public MainFormTest {
protected:
    AuxiliaryForms() { form.ShowWindow(); }

    // Runs once the loop that follows is waiting for messages.
    static void Later(std::function<void()> action) {
        static std::function<void()> pending;
        pending = std::move(action);
        SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR timer, DWORD) {
            KillTimer(nullptr, timer);
            pending();
        });
    }
    static FormControl& ControlOf(LocalizableForm& owner, const std::string& name) {
        for (FormControl* control : owner.Controls())
            if (control->Name() == name)
                return *control;
        throw std::out_of_range(name);
    }

    RecordingEvents recorded;
};

TEST_F(AuxiliaryForms, ProgressTakesItsTextsEachTimeItIsShown) {
    frmProgress progress(form.Handle(), errors);
    progress.Attach(recorded);
    EXPECT_EQ(TextOf(progress.Handle()), L"TNT4SWX");
    EXPECT_EQ(TextOf(FindChild(progress.Handle(), IDC_cmdCancel)), L"Stop");
    for (int time = 0; time < 2; ++time) {
        progress.ShowProgress({"Farben werden entfernt ...", 10, 30, 10});
        EXPECT_NE(IsWindowVisible(progress.Handle()), FALSE);
        progress.HideProgress();
        EXPECT_EQ(IsWindowVisible(progress.Handle()), FALSE);
    }
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"loading", "loading"}));
    EXPECT_EQ(TextOf(FindChild(progress.Handle(), IDC_lblInfo)), L"Farben werden entfernt ...");
}

TEST_F(AuxiliaryForms, ProgressBeyondTheMaximumStaysAtTheEnd) {
    frmProgress progress(form.Handle(), errors);
    const HWND bar = FindChild(progress.Handle(), IDC_prbMain);
    progress.ShowProgress({"x", 10, 30, 10});
    EXPECT_EQ(SendMessageW(bar, PBM_GETPOS, 0, 0), 10);
    progress.SetProgress(20);
    EXPECT_EQ(SendMessageW(bar, PBM_GETPOS, 0, 0), 20);
    progress.SetProgress(99);
    progress.RefreshProgress();
    EXPECT_EQ(SendMessageW(bar, PBM_GETPOS, 0, 0), 30);
}

TEST_F(AuxiliaryForms, ProgressWithoutARangeTakesAnyValue) {
    frmProgress progress(form.Handle(), errors);
    for (const int maximum : {5, 4}) {
        progress.ShowProgress({"x", 5, maximum, 5});
        for (const int value : {-1, 4, 5, 6})
            progress.SetProgress(value);
    }
    EXPECT_NE(IsWindowVisible(progress.Handle()), FALSE);
}

TEST_F(AuxiliaryForms, LongCaptionsOfAHandMadeLanguageStayInTheirWindows) {
    const std::string words = "eine Beschriftung ";
    std::string caption;
    while (caption.size() + words.size() < 255)
        caption += words;
    const auto expectInside = [](HWND window, int id) {
        RECT place{};
        RECT area{};
        GetWindowRect(FindChild(window, id), &place);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
        GetClientRect(window, &area);
        EXPECT_GE(place.left, 0) << id;
        EXPECT_LE(place.right, area.right) << id;
        EXPECT_LE(place.bottom, area.bottom) << id;
        return HeightOf(place);
    };
    frmAbout about(form.Handle(), errors, banners);
    frmProgress progress(form.Handle(), errors);
    const int line = expectInside(about.Handle(), IDC_lblMail);
    for (const char* name : {"cmdSysInfo", "cmdOK", "lblMail"})
        ControlOf(about, name).SetProperty("Caption", caption);
    ControlOf(progress, "cmdCancel").SetProperty("Caption", caption);
    PumpMessages();
    for (const int id : {IDC_cmdSysInfo, IDC_cmdOK, IDC_lblMail})
        EXPECT_GT(expectInside(about.Handle(), id), 2 * line) << "it takes more lines";
    EXPECT_GT(expectInside(progress.Handle(), IDC_cmdCancel), 2 * line);
    ControlOf(about, "lblMail").SetProperty("Caption", std::string(255, 'W'));
    PumpMessages();
    EXPECT_GT(expectInside(about.Handle(), IDC_lblMail), 2 * line) << "words are broken, too";
}

TEST_F(AuxiliaryForms, AboutAndProgressAreNeitherMinimisedNorMaximised) {
    frmAbout about(form.Handle(), errors, banners);
    frmProgress progress(form.Handle(), errors);
    for (const HWND window : {about.Handle(), progress.Handle()}) {
        ShowWindow(window, SW_SHOW);
        PumpMessages();
        for (const WPARAM command : {WPARAM{SC_MAXIMIZE}, WPARAM{SC_MINIMIZE}, WPARAM{SC_SIZE}}) {
            SendMessageW(window, WM_SYSCOMMAND, command, 0);
            EXPECT_EQ(IsZoomed(window), FALSE);
            EXPECT_EQ(IsIconic(window), FALSE);
            EXPECT_EQ(GetMenuState(GetSystemMenu(window, FALSE), static_cast<UINT>(command),
                                   MF_BYCOMMAND),
                      static_cast<UINT>(-1));
        }
    }
}

TEST_F(AuxiliaryForms, AboutAndProgressTakeTheirOwnSizeAgainWhenTheyAreGivenAnother) {
    frmAbout about(form.Handle(), errors, banners);
    frmProgress progress(form.Handle(), errors);
    for (const HWND window : {about.Handle(), progress.Handle()}) {
        PumpMessages();
        RECT before{};
        RECT after{};
        GetWindowRect(window, &before);
        SetWindowPos(window, nullptr, 0, 0, 900, 800, SWP_NOMOVE | SWP_NOZORDER);
        PumpMessages();
        GetWindowRect(window, &after);
        EXPECT_EQ(WidthOf(after), WidthOf(before));
        EXPECT_EQ(HeightOf(after), HeightOf(before));
    }
}

TEST_F(AuxiliaryForms, ProgressValuesThatLookAlikeAreNotSentToTheBar) {
    frmProgress progress(form.Handle(), errors);
    const HWND bar = FindChild(progress.Handle(), IDC_prbMain);
    progress.ShowProgress({"x", 0, 1'000'000, 0});
    progress.SetProgress(4999);
    EXPECT_EQ(SendMessageW(bar, PBM_GETPOS, 0, 0), 0);
    progress.SetProgress(5000);
    EXPECT_EQ(SendMessageW(bar, PBM_GETPOS, 0, 0), 5000);
    progress.SetProgress(999'999);
    progress.SetProgress(1'000'000);
    EXPECT_EQ(SendMessageW(bar, PBM_GETPOS, 0, 0), 1'000'000);
}

TEST_F(AuxiliaryForms, ProgressOfAMillionStepsTellsItsBarTwoHundredTimesAtMost) {
    frmProgress progress(form.Handle(), errors);
    progress.ShowProgress({"x", 0, 1'000'000, 0});
    const MessageCounter bar(FindChild(progress.Handle(), IDC_prbMain));
    for (std::int32_t value = 1; value <= 1'000'000; ++value)
        progress.SetProgress(value);
    EXPECT_GT(bar.Count(PBM_SETPOS), 100);
    EXPECT_LE(bar.Count(PBM_SETPOS), 200);
}

TEST_F(AuxiliaryForms, ProgressGivesTheHourGlassUntilTheOperationIsOver) {
    frmProgress progress(form.Handle(), errors);
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    progress.ShowProgress({"x", 0, 2, 0});
    progress.ShowProgress({"y", 0, 2, 0});
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    progress.HideProgress();
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(AuxiliaryForms, ProgressAppearsWhileAnOperationLetsTheWindowHandleEvents) {
    FakeWaitingClock clock;
    Win32Ticker ticker(errors);
    ProgressOnDemand window(form.Handle(), errors);
    PatientProgress progress(window, ticker, clock, 1s);
    progress.ShowProgress("x", 0, 2);
    clock.now += 1s;
    EXPECT_EQ(window.IfMade(), nullptr);
    EXPECT_TRUE(PumpUntil([&] { return window.IfMade() != nullptr; }));
    EXPECT_NE(IsWindowVisible(static_cast<frmProgress&>(window.Get()).Handle()), FALSE);
}

// An operation that is over may leave a tick behind, which comes to the next one.
TEST_F(AuxiliaryForms, TickOfATimerThatWasStoppedIsNone) {
    Win32Ticker ticker(errors);
    int old = 0;
    ticker.Start(10ms, [&] { ++old; });
    MSG tick{};
    EXPECT_TRUE(PumpUntil(
        [&] { return PeekMessageW(&tick, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE) != FALSE; }));
    int next = 0;
    ticker.Start(1h, [&] { ++next; });
    old = 0; // those that came while a tick was waited for
    DispatchMessageW(&tick);
    EXPECT_EQ(old, 0);
    EXPECT_EQ(next, 0);
    ticker.Stop();
    DispatchMessageW(&tick);
    EXPECT_EQ(next, 0);
}

TEST_F(AuxiliaryForms, ErrorOfATickIsReported) {
    Win32Ticker ticker(errors);
    ticker.Start(10ms, [&] {
        ticker.Stop();
        throw RuntimeError(ErrorNumber::Internal, ErrorTexts::NoWindow, {"x"});
    });
    EXPECT_TRUE(PumpUntil([&] { return !errors.reports.empty(); }));
    errors.reports.clear(); // it was expected
}

TEST_F(AuxiliaryForms, ProgressAppearsAsFarAsTheOperationIs) {
    frmProgress progress(form.Handle(), errors);
    progress.ShowProgress({"x", 0, 100, 40});
    EXPECT_EQ(SendMessageW(FindChild(progress.Handle(), IDC_prbMain), PBM_GETPOS, 0, 0), 40);
}

// Directly above its owner, with no other window between them.
TEST_F(AuxiliaryForms, ProgressComesBackFromAboveAllOthersWithItsOwner) {
    frmProgress progress(form.Handle(), errors);
    for (const bool onTop : {true, false, true, false}) {
        form.SetTopmost(onTop);
        progress.SetTopmost(onTop);
        progress.ShowProgress({"x", 0, 1, 0});
        for (const HWND window : {form.Handle(), progress.Handle()})
            EXPECT_EQ((GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0, onTop);
        EXPECT_EQ(GetWindow(progress.Handle(), GW_OWNER), form.Handle());
        progress.HideProgress();
    }
}

TEST_F(AuxiliaryForms, ButtonEscapeAndCloseBoxStopAndLeaveTheWindowOpen) {
    frmProgress progress(form.Handle(), errors);
    progress.Attach(recorded);
    progress.ShowProgress({"x", 0, 1, 0});
    recorded.lines.clear();
    SendMessageW(FindChild(progress.Handle(), IDC_cmdCancel), BM_CLICK, 0, 0);
    SendMessageW(progress.Handle(), WM_CLOSE, 0, 0);
    MSG escape{progress.Handle(), WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
    EXPECT_TRUE(progress.TranslateKeys(escape));
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"stop", "stop", "stop"}));
    EXPECT_NE(IsWindowVisible(progress.Handle()), FALSE);
}

TEST_F(AuxiliaryForms, AboutIsModalAndComesAgain) {
    frmAbout about(form.Handle(), errors, banners);
    about.Attach(recorded);
    about.SetWindowCaption("TNT4SWX - Info ");
    about.SetTitle("TNT4SWX");
    about.SetVersion("Version 1.2.7");
    EXPECT_EQ(TextOf(about.Handle()), L"TNT4SWX - Info ");
    EXPECT_EQ(TextOf(FindChild(about.Handle(), IDC_lblVersion)), L"Version 1.2.7");
    for (int time = 0; time < 2; ++time) {
        bool ownerWasDisabled = false;
        Later([&] {
            ownerWasDisabled = IsWindowEnabled(form.Handle()) == FALSE;
            SendMessageW(FindChild(about.Handle(), IDC_cmdOK), BM_CLICK, 0, 0);
        });
        about.ShowModal();
        EXPECT_TRUE(ownerWasDisabled);
        EXPECT_NE(IsWindowEnabled(form.Handle()), FALSE);
        EXPECT_EQ(IsWindowVisible(about.Handle()), FALSE);
    }
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"unloading", "unloading"}));
}

TEST_F(AuxiliaryForms, AboutReportsItsLinksAndButtons) {
    frmAbout about(form.Handle(), errors, banners);
    about.Attach(recorded);
    SendMessageW(FindChild(about.Handle(), IDC_cmdSysInfo), BM_CLICK, 0, 0);
    Click(FindChild(about.Handle(), IDC_lblLinkHomepage), {2, 2});
    SendMessageW(FindChild(about.Handle(), IDC_lblMail), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"system", "home", "mail"}));
}

TEST_F(AuxiliaryForms, LinkIsFollowedOnceByADoubleClickAndByAKeyThatIsHeldDown) {
    frmAbout about(form.Handle(), errors, banners);
    about.Attach(recorded);
    const HWND link = FindChild(about.Handle(), IDC_lblLinkHomepage);
    SendMessageW(link, WM_LBUTTONUP, 0, 0); // pressed elsewhere
    EXPECT_TRUE(recorded.lines.empty());
    Click(link, {2, 2});
    SendMessageW(link, WM_LBUTTONDBLCLK, MK_LBUTTON, 0);
    SendMessageW(link, WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(recorded.lines, std::vector<std::string>{"home"});
    constexpr LPARAM isRepeated = LPARAM{KF_REPEAT} << 16U;
    SendMessageW(link, WM_KEYDOWN, VK_SPACE, 0);
    SendMessageW(link, WM_KEYDOWN, VK_SPACE, isRepeated);
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"home", "home"}));
}

TEST_F(AuxiliaryForms, AboutWindowIsMadeWhenItIsFirstWanted) {
    AboutOnDemand about(form.Handle(), errors, banners);
    about.Attach(recorded);
    EXPECT_EQ(about.IfMade(), nullptr);
    EXPECT_EQ(FindWindowW(L"frmAbout", nullptr), nullptr);
    about.Get().SetTitle("TNT4SWX");
    const HWND made = FindWindowW(L"frmAbout", nullptr);
    EXPECT_EQ(TextOf(FindChild(made, IDC_lblTitle)), L"TNT4SWX");
    EXPECT_EQ(about.IfMade(), &about.Get());
    SendMessageW(FindChild(made, IDC_lblMail), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(recorded.lines, std::vector<std::string>{"mail"});
}

TEST_F(AuxiliaryForms, AboutIsLocalisable) {
    frmAbout about(form.Handle(), errors, banners);
    EXPECT_EQ(about.Name(), "frmAbout");
    ControlOf(about, "cmdSysInfo").SetProperty("Caption", "&System info ...");
    EXPECT_EQ(TextOf(FindChild(about.Handle(), IDC_cmdSysInfo)), L"&System info ...");
    EXPECT_EQ(ControlOf(about, "lblMail").TypeName(), "Label");
    EXPECT_EQ(ControlOf(about, "picIcon").TypeName(), "PictureBox");
}

TEST_F(AuxiliaryForms, EndOfTheProgramEndsTheModalWindowToo) {
    frmAbout about(form.Handle(), errors, banners);
    Later([] { PostQuitMessage(5); });
    about.ShowModal();
    EXPECT_EQ(RunMessageLoop(), 5);
}

TEST_F(AuxiliaryForms, ViewerShowsItsEntriesAndReportsTheChoice) {
    frmTxtView viewer(form.Handle(), errors, banners);
    viewer.Attach(recorded);
    const HWND combo = FindChild(viewer.Handle(), IDC_cmbTxtView);
    viewer.SetEntries({"readme", "lizenz", "changes"});
    EXPECT_EQ(SendMessageW(combo, CB_GETCURSEL, 0, 0), CB_ERR);
    viewer.SelectEntry(1);
    viewer.ShowModeless();
    SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"entry 1", "entry 2"}));
    EXPECT_THROW(viewer.SelectEntry(3), RuntimeError);
}

TEST_F(AuxiliaryForms, ViewerTakesTextThatLooksLikeMarkupAsItIs) {
    frmTxtView viewer(form.Handle(), errors, banners);
    viewer.SetText("{\\rtf1 Prüfung}");
    EXPECT_EQ(TextOf(FindChild(viewer.Handle(), IDC_rtbShowtext)), L"{\\rtf1 Prüfung}");
}

TEST_F(AuxiliaryForms, ViewerIsArrangedAgainWhenTheSystemsTextsChangeTheirSize) {
    frmTxtView viewer(form.Handle(), errors, banners);
    const HWND button = FindChild(viewer.Handle(), IDC_cmdOkay);
    RECT before{};
    GetWindowRect(button, &before);
    SetWindowPos(button, nullptr, 0, 0, 5, 5, SWP_NOZORDER);
    SendMessageW(viewer.Handle(), WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS, 0);
    RECT after{};
    GetWindowRect(button, &after);
    EXPECT_NE(EqualRect(&before, &after), FALSE);
}

TEST_F(AuxiliaryForms, ViewerHoldsALongText) {
    frmTxtView viewer(form.Handle(), errors, banners);
    std::string text;
    for (int line = 0; line < 2000; ++line)
        text += "A line of the document, as long as lines usually are.\r\n";
    viewer.SetText(text);
    EXPECT_EQ(GetWindowTextLengthW(FindChild(viewer.Handle(), IDC_rtbShowtext)),
              static_cast<int>(text.size()));
}

TEST_F(AuxiliaryForms, ViewerTextTakesTheSizeItIsGivenOnlyInTheNormalState) {
    frmTxtView viewer(form.Handle(), errors, banners);
    viewer.Attach(recorded);
    viewer.ShowModeless();
    const HWND text = FindChild(viewer.Handle(), IDC_rtbShowtext);
    const auto place = [&] {
        RECT bounds{};
        GetWindowRect(text, &bounds);
        MapWindowPoints(nullptr, viewer.Handle(), reinterpret_cast<POINT*>(&bounds), 2);
        return bounds;
    };
    const RECT before = place();
    RECT area{};
    GetClientRect(viewer.Handle(), &area);
    EXPECT_EQ(WidthOf(before), viewer.Scale().ToPixels(viewer.Scale().ToTwips(area.right) - 1900));
    EXPECT_EQ(HeightOf(before), viewer.Scale().ToPixels(viewer.Scale().ToTwips(area.bottom) - 625));
    ShowWindow(viewer.Handle(), SW_MAXIMIZE);
    EXPECT_EQ(WidthOf(place()), WidthOf(before));
    EXPECT_EQ(place().left, before.left);
}

TEST_F(AuxiliaryForms, ViewerClosesByItsButtonAndComesAgain) {
    frmTxtView viewer(form.Handle(), errors, banners);
    viewer.Attach(recorded);
    for (int time = 0; time < 2; ++time) {
        viewer.ShowModeless();
        EXPECT_NE(IsWindowVisible(viewer.Handle()), FALSE);
        SendMessageW(FindChild(viewer.Handle(), IDC_cmdOkay), BM_CLICK, 0, 0);
        EXPECT_EQ(IsWindowVisible(viewer.Handle()), FALSE);
    }
}

// A key that goes the way of the program's message loop.
void Press(Form& owner, WPARAM key) {
    MSG down{GetFocus(), WM_KEYDOWN, key, 0, 0, {}};
    if (!owner.TranslateKeys(down))
        SendMessageW(down.hwnd, WM_KEYDOWN, key, 0);
}

// Alt with a letter.
void PressAccessKey(Form& owner, wchar_t letter) {
    MSG down{GetFocus(), WM_SYSCHAR, letter, 0x20000001, 0, {}};
    owner.TranslateKeys(down);
}

// The controls that the Tab key visits, from the one with the focus on.
std::vector<int> TabOrder(Form& owner) {
    std::vector<int> order;
    const HWND first = GetFocus();
    do {
        order.push_back(GetDlgCtrlID(GetFocus()));
        Press(owner, VK_TAB);
    } while (GetFocus() != first && order.size() < 20);
    return order;
}

class AboutKeys : public AuxiliaryForms {
protected:
    // Opens the window, does the action in it, and closes it if it is still open then.
    void InAbout(const std::function<void()>& action) {
        about.Attach(recorded);
        Later([&] {
            action();
            wasClosed = IsWindowVisible(about.Handle()) == FALSE;
            SendMessageW(about.Handle(), WM_CLOSE, 0, 0);
        });
        about.ShowModal();
    }

    frmAbout about{form.Handle(), errors, banners};
    bool wasClosed = false;
};

TEST_F(AboutKeys, TabVisitsLinksAndButtonsAndStartsAtOk) {
    std::vector<int> order;
    InAbout([&] { order = TabOrder(about); });
    EXPECT_EQ(order,
              (std::vector<int>{IDC_cmdOK, IDC_lblLinkHomepage, IDC_lblMail, IDC_cmdSysInfo}));
}

TEST_F(AboutKeys, EnterOpensTheLinkThatHasTheFocus) {
    InAbout([&] {
        SetFocus(FindChild(about.Handle(), IDC_lblMail));
        Press(about, VK_RETURN);
    });
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"mail", "unloading"}));
}

TEST_F(AboutKeys, EnterPressesTheButtonThatHasTheFocus) {
    InAbout([&] {
        SetFocus(FindChild(about.Handle(), IDC_cmdSysInfo));
        Press(about, VK_RETURN);
    });
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"system", "unloading"}));
}

TEST_F(AboutKeys, AccessKeyPressesTheSystemInformationButton) {
    ControlOf(about, "cmdSysInfo").SetProperty("Caption", "&System info ...");
    InAbout([&] { PressAccessKey(about, L's'); });
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"system", "unloading"}));
}

TEST_F(AuxiliaryForms, AboutIsClosedByEnterAndByEscape) {
    frmAbout about(form.Handle(), errors, banners);
    about.Attach(recorded);
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}}) {
        Later([&] { Press(about, key); });
        about.ShowModal();
    }
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"unloading", "unloading"}));
}

TEST_F(AuxiliaryForms, ViewerIsWorkedByKeysAlone) {
    frmTxtView viewer(form.Handle(), errors, banners);
    viewer.Attach(recorded);
    viewer.SetEntries({"readme"});
    viewer.ShowModeless();
    EXPECT_EQ(TabOrder(viewer), (std::vector<int>{IDC_cmbTxtView, IDC_rtbShowtext, IDC_cmdOkay}));
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}})
        for (const int id : {IDC_cmbTxtView, IDC_rtbShowtext, IDC_cmdOkay}) {
            viewer.ShowModeless();
            SetFocus(FindChild(viewer.Handle(), id));
            Press(viewer, key);
            EXPECT_EQ(IsWindowVisible(viewer.Handle()), FALSE) << id << " " << key;
        }
}

TEST_F(AuxiliaryForms, ViewerThatIsMaximisedStaysSoWhenItIsAskedForAgain) {
    frmTxtView viewer(form.Handle(), errors, banners);
    viewer.Attach(recorded);
    viewer.ShowModeless();
    ShowWindow(viewer.Handle(), SW_MAXIMIZE);
    viewer.ShowModeless();
    EXPECT_NE(IsZoomed(viewer.Handle()), FALSE);
    ShowWindow(viewer.Handle(), SW_MINIMIZE);
    viewer.ShowModeless();
    EXPECT_EQ(IsIconic(viewer.Handle()), FALSE);
}

TEST_F(AuxiliaryForms, ProgressIsStoppedByEnterByEscapeAndByItsAccessKey) {
    frmProgress progress(form.Handle(), errors);
    progress.Attach(recorded);
    ControlOf(progress, "cmdCancel").SetProperty("Caption", "&Stop");
    progress.ShowProgress({"x", 0, 1, 0});
    recorded.lines.clear();
    SetFocus(FindChild(progress.Handle(), IDC_cmdCancel));
    Press(progress, VK_RETURN);
    Press(progress, VK_ESCAPE);
    PressAccessKey(progress, L's');
    EXPECT_EQ(recorded.lines, (std::vector<std::string>{"stop", "stop", "stop"}));
}

TEST_F(AuxiliaryForms, ProgressShownHasTheFocusOnItsStopButton) {
    frmProgress progress(form.Handle(), errors);
    progress.ShowProgress({"x", 0, 1, 0});
    EXPECT_EQ(GetFocus(), FindChild(progress.Handle(), IDC_cmdCancel));
}

class OpenedAndClosed : public AuxiliaryForms {
protected:
    void ShowAll() {
        frmAbout about(form.Handle(), errors, banners);
        about.Attach(recorded);
        Later([&] { SendMessageW(about.Handle(), WM_CLOSE, 0, 0); });
        about.ShowModal();
        frmTxtView viewer(form.Handle(), errors, banners);
        viewer.Attach(recorded);
        viewer.SetEntries({"readme", "lizenz"});
        viewer.SelectEntry(1);
        viewer.SetText("text");
        viewer.ShowModeless();
        PumpMessages();
        SendMessageW(viewer.Handle(), WM_CLOSE, 0, 0);
        frmProgress progress(form.Handle(), errors);
        progress.ShowProgress({"x", 0, 9, 0});
        progress.SetProgress(5);
        progress.RefreshProgress();
        progress.HideProgress();
        PumpMessages();
    }
};

TEST_F(OpenedAndClosed, FiftyTimesLeavesNoHandleBehind) {
    for (int warmUp = 0; warmUp < 2; ++warmUp) { // what the system makes once and keeps
        ShowAll();
        static_cast<void>(CountGuiObjects()); // takes its time, in which some of it comes
    }
    const GuiObjects before = CountGuiObjects();
    for (int time = 0; time < 50; ++time)
        ShowAll();
    const GuiObjects after = CountGuiObjects();
    EXPECT_EQ(after.gdi, before.gdi);
    EXPECT_EQ(after.user, before.user);
}

TEST_F(OpenedAndClosed, HandlesThatAreLeftBehindAreCounted) {
    const GuiObjects before = CountGuiObjects();
    HPEN pen = CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    HMENU menu = CreateMenu();
    HWND window = CreateWindowW(WC_STATICW, L"", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    const GuiObjects after = CountGuiObjects();
    DestroyWindow(window);
    DestroyMenu(menu);
    DeleteObject(pen);
    EXPECT_GT(after.gdi, before.gdi);
    EXPECT_GE(after.user, before.user + 2);
}

class InputBoxes : public AuxiliaryForms {
protected:
    // Answers the box as the user does; gives the box to the action first.
    std::wstring Ask(const std::function<void(HWND)>& action) {
        Later([action] {
            const HWND box = FindWindowW(L"InputBox", L"Titel");
            ASSERT_NE(box, nullptr);
            action(box);
        });
        return ShowInputBox(form.Handle(), L"Name der neuen Farbe:", L"Titel", L"Neue Farbe");
    }
};

TEST_F(InputBoxes, PresetIsSelectedAndThePromptIsShown) {
    Ask([](HWND box) {
        DWORD start = 9;
        DWORD end = 0;
        SendMessageW(FindChild(box, InputBoxControls::Input), EM_GETSEL,
                     reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        EXPECT_EQ(start, 0U);
        EXPECT_EQ(end, 10U);
        EXPECT_EQ(GetFocus(), FindChild(box, InputBoxControls::Input));
        EXPECT_EQ(TextOf(FindChild(box, InputBoxControls::Prompt)), L"Name der neuen Farbe:");
        PostMessageW(box, WM_CLOSE, 0, 0);
    });
}

TEST_F(InputBoxes, ControlsAreAnnounced) {
    const ComApartment apartment;
    Ask([](HWND box) {
        const std::vector<AccessibleControl> controls = AccessibleControlsOf(box);
        EXPECT_GE(controls.size(), 4U);
        for (const AccessibleControl& control : controls) {
            EXPECT_NE(control.name, "") << control.id << " " << control.type;
            EXPECT_NE(control.role, "") << control.id << " " << control.type;
        }
        PostMessageW(box, WM_CLOSE, 0, 0);
    });
}

TEST_F(InputBoxes, EnterGivesTheText) {
    EXPECT_EQ(Ask([](HWND box) {
                  SetWindowTextW(FindChild(box, InputBoxControls::Input), L"Grün");
                  PostMessageW(FindChild(box, InputBoxControls::Input), WM_KEYDOWN, VK_RETURN, 0);
              }),
              L"Grün");
}

TEST_F(InputBoxes, EscapeCancelAndCloseBoxGiveNothing) {
    EXPECT_EQ(Ask([](HWND box) {
                  PostMessageW(FindChild(box, InputBoxControls::Input), WM_KEYDOWN, VK_ESCAPE, 0);
              }),
              L"");
    EXPECT_EQ(Ask([](HWND box) { SendMessageW(FindChild(box, IDCANCEL), BM_CLICK, 0, 0); }), L"");
    EXPECT_EQ(Ask([](HWND box) { PostMessageW(box, WM_CLOSE, 0, 0); }), L"");
}

TEST_F(InputBoxes, OkButtonGivesTheText) {
    EXPECT_EQ(Ask([](HWND box) { SendMessageW(FindChild(box, IDOK), BM_CLICK, 0, 0); }),
              L"Neue Farbe");
}

TEST_F(InputBoxes, LongPromptLeavesTheBoxOnTheScreen) {
    for (const std::wstring& prompt :
         {std::wstring(5400, L'n'), std::wstring(500, L'\n'), std::wstring(300, L'W')}) {
        Later([] {
            const HWND box = FindWindowW(L"InputBox", L"Titel");
            RECT place{};
            RECT inner{};
            GetWindowRect(box, &place);
            const RECT screen = WorkAreaOf(box);
            RECT both{};
            EXPECT_NE(IntersectRect(&inner, &place, &screen), FALSE);
            EXPECT_NE(UnionRect(&both, &place, &screen), FALSE);
            EXPECT_NE(EqualRect(&both, &screen), FALSE) << "the box is inside";
            PostMessageW(box, WM_CLOSE, 0, 0);
        });
        static_cast<void>(ShowInputBox(form.Handle(), prompt, L"Titel", L""));
    }
}

constexpr RECT kScreen{100, 0, 1100, 800};

TEST(Centring, WindowStandsInTheMiddleOfItsOwner) {
    const RECT place = CentredIn({300, 200, 700, 600}, {200, 100}, kScreen);
    EXPECT_EQ(place.left, 400);
    EXPECT_EQ(place.top, 350);
    EXPECT_EQ(place.right, 600);
    EXPECT_EQ(place.bottom, 450);
}

TEST(Centring, WindowStaysInsideTheWorkArea) {
    const RECT right = CentredIn({1000, 700, 1400, 1100}, {200, 100}, kScreen);
    EXPECT_EQ(right.right, kScreen.right);
    EXPECT_EQ(right.bottom, kScreen.bottom);
    const RECT left = CentredIn({-100, -200, 100, 0}, {200, 100}, kScreen);
    EXPECT_EQ(left.left, kScreen.left);
    EXPECT_EQ(left.top, kScreen.top);
}

TEST(Centring, WindowThatIsTooLargeShowsItsTopAndLeftEdge) {
    const RECT place = CentredIn(kScreen, {2000, 1000}, kScreen);
    EXPECT_EQ(place.left, kScreen.left);
    EXPECT_EQ(place.top, kScreen.top);
}

// As a window does that comes to a screen of another scale.
LRESULT CALLBACK GrowWhenMoved(HWND window, UINT id, WPARAM wParam, LPARAM lParam, UINT_PTR,
                               DWORD_PTR) {
    if (id == WM_MOVE) {
        RemoveWindowSubclass(window, GrowWhenMoved, 1);
        SetWindowPos(window, nullptr, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return DefSubclassProc(window, id, wParam, lParam);
}

TEST_F(AuxiliaryForms, WindowThatTakesAnotherSizeOnItsWayIsStillCentred) {
    form.Move({1500, 1500, 9000, 6000});
    PumpMessages();
    HWND box = CreateWindowW(WC_STATICW, L"", WS_POPUP, 0, 0, 150, 100, form.Handle(), nullptr,
                             nullptr, nullptr);
    SetWindowSubclass(box, GrowWhenMoved, 1, 0);
    CentreOnOwner(box);
    RECT place{};
    RECT owner{};
    GetWindowRect(box, &place);
    GetWindowRect(form.Handle(), &owner);
    EXPECT_EQ(WidthOf(place), 300);
    EXPECT_NEAR(place.left + place.right, owner.left + owner.right, 1);
    EXPECT_NEAR(place.top + place.bottom, owner.top + owner.bottom, 1);
    DestroyWindow(box);
}

} // namespace
