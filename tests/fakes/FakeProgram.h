#pragma once

#include "app/Application.h"
#include "standin/model/StandInService.h"
#include "support/language/ErrorReporter.h"
#include "tests/fakes/FakeBackgroundWork.h"
#include "tests/fakes/FakeCalendarClock.h"
#include "tests/fakes/FakeClipboard.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeCollation.h"
#include "tests/fakes/FakeFiles.h"
#include "tests/fakes/FakeForm.h"
#include "tests/fakes/FakeFormWindow.h"
#include "tests/fakes/FakeMainView.h"
#include "tests/fakes/FakeOnDemand.h"
#include "tests/fakes/FakeProfile.h"
#include "tests/fakes/FakeProgress.h"
#include "tests/fakes/FakeProgressForm.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeRegistry.h"
#include "tests/fakes/FakeRunningCopies.h"
#include "tests/fakes/FakeShell.h"
#include "tests/fakes/FakeWaitingClock.h"
#include "tests/fakes/RetryingService.h"

#include <chrono>
#include <memory>
#include <string>
#include <vector>

// What all windows have that keep their place and have texts.
template <typename View>
class FakeWindowOf : public View {
public:
    FakeWindowOf(const char* name, const TwipsRect& placed) : form(name), bounds(placed) {}

    TwipsRect Bounds() const override { return bounds; }
    void Move(const TwipsRect& newBounds) override { bounds = newBounds; }
    WindowState State() const override { return WindowState::Normal; }
    void SetState(WindowState) override {}
    TwipsSize ScreenSize() const override { return {15360, 11520}; }
    void SetTopmost(bool onTop) override { topmost.push_back(onTop); }
    std::vector<FormControl*> Controls() override { return form.Controls(); }
    void SetWindowCaption(const std::string& text) override { caption = text; }

    FakeForm form;
    TwipsRect bounds;
    std::vector<bool> topmost;
    std::string caption;
};

class FakeAbout : public FakeWindowOf<AboutView> {
public:
    FakeAbout() : FakeWindowOf("frmAbout", {0, 0, 6000, 4000}) {}

    void SetTitle(const std::string& text) override { title = text; }
    void SetVersion(const std::string& text) override { version = text; }
    void SetBanner(int index) override { banner = index; }
    void ShowModal() override { ++shown; }

    std::string title;
    std::string version;
    int banner = -1;
    int shown = 0;
};

class FakeTextViewer : public TextViewerView {
public:
    void SetEntries(const std::vector<std::string>& newEntries) override { entries = newEntries; }
    void SetNames(const std::string& choice, const std::string& ofText) override {
        names = {choice, ofText};
    }
    void SelectEntry(int index) override {
        selected = index;
        if (events)
            events->EntryChosen(index);
    }
    void SetText(const std::string& newText) override { text = newText; }
    void SetBanner(int index) override { banner = index; }
    void SetTopmost(bool onTop) override { topmost.push_back(onTop); }
    void ShowModeless() override { ++shown; }

    TextViewerEvents* events = nullptr;
    std::vector<std::string> names;
    std::vector<std::string> entries;
    int selected = -1;
    std::string text;
    int banner = -1;
    std::vector<bool> topmost;
    int shown = 0;
};

class FakeRecover : public FakeWindowOf<RecoverView> {
public:
    FakeRecover() : FakeWindowOf("frmRecover", {0, 0, 9000, 5000}) {}

    void SetColumnCaptions(const RecoverRow& texts) override { columns = texts; }
    void SetRows(const std::vector<RecoverRow>& newRows) override { rows = newRows; }
    std::vector<int> ShowModal() override { return work ? work() : std::vector<int>(); }

    std::function<std::vector<int>()> work; // what the user does while it is shown
    RecoverRow columns;
    std::vector<RecoverRow> rows;
};

// As the user sees it: texts of the rows are asked as they are painted.
class FakeFind : public FakeWindowOf<FindView> {
public:
    FakeFind() : FakeWindowOf("frmFind", {0, 0, 6000, 5000}) {}

    void SetColumnCaptions(const FindCaptions& texts) override { columns = texts; }
    void ShowDifferences(bool isShown) override { hasDifferences = isShown; }
    void ShowActiveColor(ColorNumber color) override { swatch = color; }
    void ShowRows(int count, int selected) override {
        rowCount = count;
        selectedRow = selected;
        ++rowChanges;
    }
    void AddRows(int count) override { rowCount = count; }
    void SelectRow(int row) override { selectedRow = row; }
    void SetStatus(const std::string& text) override { status = text; }
    void TickEvery(int milliseconds) override { pace = milliseconds; }
    void ShowModeless() override { ++shown; }

    FindCaptions columns;
    bool hasDifferences = false;
    ColorNumber swatch = 0;
    int rowCount = 0;
    int selectedRow = -1;
    int rowChanges = 0; // reported, of all rows
    std::string status;
    int pace = 0;
    int shown = 0;
};

class FakeLevels : public FakeWindowOf<LevelsView> {
public:
    FakeLevels() : FakeWindowOf("frmLevels", {0, 0, 9000, 4000}) {}

    void SetColumnCaptions(const LevelCells& texts) override { columns = texts; }
    void ShowRows(const std::vector<LevelRow>& newRows, int row) override {
        rows = newRows;
        selectedRow = row;
    }
    void ShowSentence(const std::string& text) override { sentence = text; }
    void ShowModeless() override { ++shown; }

    LevelCells columns;
    std::vector<LevelRow> rows;
    int selectedRow = -1;
    std::string sentence;
    int shown = 0;
};

// The whole program on fakes, with the stand-in's model as the running SolidWorks.  The language
// file of both languages is there: its message texts are their numbers in angle brackets; for the
// descriptions of errors, which have arguments, it has none.
//
// Made and taken down in a file of its own: what that needs, the whole program, is compiled once
// and not for each file of tests.
class FakeProgram {
public:
    // running: gets the running SolidWorks instead of the model.  sliceOfSearch: how long a search
    // goes on in one go.
    explicit FakeProgram(const std::string& scenario = "default",
                         AutomationService* running = nullptr,
                         std::chrono::milliseconds sliceOfSearch = FindHits::kSlice);
    ~FakeProgram();
    FakeProgram(const FakeProgram&) = delete;
    FakeProgram& operator=(const FakeProgram&) = delete;

    MainEvents Main() { return application.MainWindowEvents(); }

    // The settings' key of the registry.
    static std::string Setting(const std::string& name) {
        return "SOFTWARE\\Chromixs\\TNT4SWX|" + name;
    }

    static constexpr const char* kRecoveryFolder = "C:\\data\\recovery";

    FakePrompts prompts;
    FakeFiles files;
    FakeProfile profile;
    FakeRegistry registry;
    FakeClipboard clipboard;
    FakeCollation collation;
    FakeShell shell;
    FakeEventPump events;
    FakeProgress progress;
    FakeCodePage codePage = FakeCodePage::Western();
    StandInModel solidWorks;
    StandInService service{solidWorks};
    FakeWaitingClock clock;
    FakeCalendarClock calendar;
    BusyRetry retry{clock};
    RetryingService retryingService{service, retry};
    AutomationService& automation;
    std::chrono::milliseconds findSlice;
    FakeMainView view;
    FakeFormWindow mainWindow;
    FakeForm mainForm{"frmMain"};
    FakeAbout about;
    FakeTextViewer textViewer;
    FakeOnDemand<AboutView> aboutWindow{about};
    FakeOnDemand<TextViewerView> textViewerWindow{textViewer};
    FakeRecover recover;
    FakeOnDemand<RecoverView> recoverWindow{recover};
    FakeFind find;
    FakeOnDemand<FindView> findWindow{find};
    FakeLevels levels;
    FakeOnDemand<LevelsView> levelsWindow{levels};
    FakeRunningCopies copies;
    FakeBackgroundWork background;
    FakeProgressForm progressForm;
    FakeOnDemand<ProgressForm> progressWindow{progressForm};
    clsMultiLanguage language{profile, files, codePage};
    ErrorReporter errors{prompts, language};
    Application application{
        {files, codePage, registry, prompts, clipboard, collation, shell, events, automation, retry,
         language, errors, calendar, files, copies, background},
        {view.View(), mainWindow, mainForm, aboutWindow, textViewerWindow, progress, progressWindow,
         recoverWindow, findWindow, levelsWindow},
        {"C:\\prog",
         "1.2.7",
         {"https://www.example.org/1", "https://www.example.org/2", "https://www.example.org/3"},
         "C:\\prog",
         kRecoveryFolder,
         LibraryHistory::kMostBytes,
         findSlice}};
};
