#pragma once

#include "app/Application.h"
#include "common/WorkerThread.h"
#include "mainwindow/frmFind.h"
#include "mainwindow/frmLevels.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/frmRecover.h"
#include "platform/SilenceAtScopeEnd.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32Files.h"
#include "platform/Win32Folders.h"
#include "platform/Win32PrivateProfile.h"
#include "platform/Win32Ticker.h"
#include "standin/model/StandInService.h"
#include "support/language/ErrorReporter.h"
#include "support/windows/BannerPictures.h"
#include "support/windows/frmAbout.h"
#include "support/windows/frmProgress.h"
#include "support/windows/PatientProgress.h"
#include "support/windows/frmTxtView.h"
#include "tests/fakes/FakeCalendarClock.h"
#include "tests/fakes/FakeClipboard.h"
#include "tests/fakes/FakeCollation.h"
#include "tests/fakes/FakeOnDemand.h"
#include "tests/fakes/FakeProgress.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeRunningCopies.h"
#include "tests/fakes/FakeShell.h"
#include "tests/fakes/FakeWaitingClock.h"

#include <string>
#include <vector>

// The whole program with its real forms, real files and the real private-profile functions. Message
// boxes are kept instead of shown.
//
// Made and taken down in a file of its own: what that needs, the whole program, is compiled once
// and not for each file of tests.
class RealProgram {
public:
    // programFolder: holds the language files.  codePage: that of the language files.
    // solidWorksService: what stands for SolidWorks instead of the model in this object.
    // bannerFolder: holds the banner pictures; empty: there are none.
    // historyBytesOfUndo: that undo may keep.
    RealProgram(RegistryAccess& registryAccess, std::string programFolder,
                const AnsiCodePage& codePage, AutomationService* solidWorksService = nullptr,
                const std::string& bannerFolder = {},
                std::size_t historyBytesOfUndo = LibraryHistory::kMostBytes);
    ~RealProgram();
    RealProgram(const RealProgram&) = delete;
    RealProgram& operator=(const RealProgram&) = delete;

    // The address of a banner picture, from 1.
    static std::string BannerAddress(int index);

    // As the menu does.
    void Run(int command);

    // The progress window, also while it is hidden.
    [[nodiscard]] HWND ProgressHandle() {
        return static_cast<frmProgress&>(progressWindow.Get()).Handle();
    }

    // The text of the Stop button while the progress window is shown.
    [[nodiscard]] std::wstring TextOfStop();

    // Closes the window by its close box; the end of the program is not carried out.
    void Close();

    RegistryAccess& registry;
    std::string folder;
    const AnsiCodePage& page;
    BannerPictures banners;
    FakePrompts prompts;
    Win32Files files;
    Win32PrivateProfile profile;
    FakeClipboard clipboard;
    FakeCollation collation;
    FakeShell shell;
    FakeEventPump events;
    StandInModel solidWorks{"default"};
    StandInService service{solidWorks};
    AutomationService& automation;
    std::size_t historyBytes;
    FakeWaitingClock clock;
    FakeCalendarClock calendar;
    BusyRetry retry{clock};
    clsMultiLanguage language{profile, files, page};
    ErrorReporter errors{prompts, language};
    frmMain main{errors, banners};
    AboutOnDemand about{main.Handle(), errors, banners};
    frmTxtView textViewer{main.Handle(), errors, banners};
    FakeOnDemand<TextViewerView> textViewerWindow{textViewer};
    Win32Ticker ticker{errors};
    ProgressOnDemand progressWindow{main.Handle(), errors};
    PatientProgress progress{progressWindow, ticker, clock, std::chrono::milliseconds(0)};
    frmRecover recover{main.Handle(), errors};
    FakeOnDemand<RecoverView> recoverWindow{recover};
    FindOnDemand find{main.Handle(), errors};
    LevelsOnDemand levels{main.Handle(), errors};
    Win32Folders folders;
    FakeRunningCopies copies;
    WorkerThread background;
    Application application{{files, page, registry, prompts, clipboard, collation, shell, events,
                             automation, retry, language, errors, calendar, folders, copies,
                             background},
                            {main.View(), main, main, about, textViewerWindow, progress,
                             progressWindow, recoverWindow, find, levels},
                            {folder, "1.0.0", BannerAddresses(banners.Count()), folder,
                             folder + "\\recovery", historyBytes}};
    SilenceAtScopeEnd silence{main};

private:
    static std::vector<std::string> BannerAddresses(int count);
};
