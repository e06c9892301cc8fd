#pragma once

#include "app/CrashReports.h"
#include "app/SettingsStore.h"
#include "common/BusyRetry.h"
#include "common/Settings.h"
#include "common/ports/AnsiCodePage.h"
#include "common/ports/AutomationObject.h"
#include "common/ports/BackgroundWork.h"
#include "common/ports/CalendarClock.h"
#include "common/ports/Clipboard.h"
#include "common/ports/ErrorSink.h"
#include "common/ports/EventPump.h"
#include "common/ports/Files.h"
#include "common/ports/Folders.h"
#include "common/ports/FormWindow.h"
#include "common/ports/LocalizableForm.h"
#include "common/ports/ProgressView.h"
#include "common/ports/Prompts.h"
#include "common/ports/RegistryAccess.h"
#include "common/ports/RunningCopies.h"
#include "common/ports/Shell.h"
#include "common/ports/TextCollation.h"
#include "library/ColorLibrary.h"
#include "library/LibraryFiles.h"
#include "library/RecoveryFolder.h"
#include "library/RecoveryKeeper.h"
#include "mainwindow/EmptyListHint.h"
#include "mainwindow/LibraryTips.h"
#include "mainwindow/MainView.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/ShownLibraryFiles.h"
#include "solidworks/modSldTools.h"
#include "support/windows/About.h"
#include "support/windows/Banner.h"
#include "support/language/Localisation.h"
#include "support/settings/Options.h"
#include "support/windows/Progress.h"
#include "support/windows/SystemInformation.h"
#include "support/windows/TextViewer.h"
#include "support/language/clsMultiLanguage.h"
#include "support/settings/modRegistry.h"
#include "support/windows/modinternet.h"

#include <chrono>
#include <string>
#include <vector>

// The whole program on top of its ports: owns the application-wide state (settings, color library,
// language, banner, stop flag) and everything that works on it.
class Application {
public:
    struct Platform {
        Files& files;
        const AnsiCodePage& codePage;
        RegistryAccess& registry;
        Prompts& prompts;
        Clipboard& clipboard;
        const TextCollation& collation;
        Shell& shell;
        EventPump& events;
        AutomationService& automation;
        BusyRetry& retry;           // repeats the automation calls
        clsMultiLanguage& language; // the one of the program; the forms' error sink speaks it too
        ErrorSink& errors;
        const CalendarClock& calendar;
        Folders& folders;
        const RunningCopies& copies;
        BackgroundWork& background;
    };

    struct Windows {
        MainView mainView;
        FormWindow& mainWindow;
        LocalizableForm& mainForm;
        OnDemand<AboutView>& about;
        OnDemand<TextViewerView>& textViewer;
        ProgressView& progress;
        OnDemand<ProgressForm>& progressWindow;
        OnDemand<RecoverView>& recover;
        OnDemand<FindView>& find;
        OnDemand<LevelsView>& levels;
    };

    struct Data {
        std::string programFolder; // without a backslash at its end
        std::string version;       // major, minor and revision joined by "."
        std::vector<std::string> bannerAddresses;
        std::string languageFolder;   // the program's, as functions of the code page know it
        std::string recoveryFolder{}; // for libraries that are not saved; empty: none are kept
        std::size_t historyBytes = LibraryHistory::kMostBytes;  // that undo may keep
        std::chrono::milliseconds findSlice = FindHits::kSlice; // of a search, in one go
    };

    Application(const Platform& platform, const Windows& windows, const Data& data);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // Start-up: settings, banner, main window with its defaults and the default library, then the
    // window is shown.
    void Start();

    // Keep all libraries that differ from their files: before an end that is none in good order,
    // and after a crash of this thread.
    void KeepLibraries() { recoveryKeeper_.KeepAll(); }
    void KeepAfterCrash() { recoveryKeeper_.KeepAfterCrash(); }

    // Stops the banner, stores its index and ends the program at once; asks and saves nothing else.
    void Quit();

    [[nodiscard]] MainEvents MainWindowEvents() noexcept;
    [[nodiscard]] AboutEvents& AboutWindowEvents() noexcept { return about_; }
    [[nodiscard]] TextViewerEvents& TextViewerWindowEvents() noexcept { return textViewer_; }
    [[nodiscard]] ProgressEvents& ProgressWindowEvents() noexcept { return progress_; }
    [[nodiscard]] RecoverEvents& RecoverWindowEvents() noexcept { return recover_; }
    [[nodiscard]] FindEvents& FindWindowEvents() noexcept { return find_; }
    [[nodiscard]] LevelsEvents& LevelsWindowEvents() noexcept { return levels_; }

private:
    void SetFormDefaults();
    void ShowBanner(int index);
    [[nodiscard]] std::vector<LocalizableForm*> LocalizableForms() const;

    // For the constructor: each uses the members above the one that it is for.
    [[nodiscard]] RecoveryKeeper::Parts PartsOfKeeper(const Platform& platform);
    [[nodiscard]] NewNodes::Parts PartsOfNewNodes(const Platform& platform);
    [[nodiscard]] ShownLibraryFiles::Parts PartsOfShownFiles(const Platform& platform);
    [[nodiscard]] EditingCommands::Parts PartsOfEditing(const Platform& platform);
    [[nodiscard]] FileCommands::Parts PartsOfFileCommands(const Platform& platform,
                                                          const Data& data);
    [[nodiscard]] ColorDrag::Parts PartsOfDrag(const Platform& platform);
    [[nodiscard]] PaletteCommands::Parts PartsOfPalettes(const Platform& platform);
    [[nodiscard]] RecoverCommands::Parts PartsOfRecover(const Platform& platform);
    [[nodiscard]] FindCommands::Parts PartsOfFind(const Data& data);
    [[nodiscard]] SolidWorksCommands::Parts PartsOfSolidWorks();
    [[nodiscard]] LevelsCommands::Parts PartsOfLevels();
    [[nodiscard]] MainCommands Commands();
    [[nodiscard]] MainWindow::Parts PartsOfMainWindow(const Platform& platform);

    Windows windows_;
    bool stopFlag_ = false;
    Settings settings_;
    modRegistry registry_;
    SettingsStore settingsStore_;
    clsMultiLanguage& language_;
    ErrorSink& errors_;
    ColorLibrary library_;
    LibraryFiles libraryFiles_;
    CrashReports crashReports_;
    RecoveryFolder recoveryFolder_;
    RecoveryKeeper recoveryKeeper_;
    modSldTools solidWorks_;
    modinternet links_;
    Banner banner_;
    SystemInformation systemInformation_;
    Localisation localisation_;
    Options options_;
    About about_;
    TextViewer textViewer_;
    Progress progress_;
    MainPanes panes_;
    NewNodes newNodes_;
    ShownLibraryFiles shownFiles_;
    LibraryTips tips_;
    ViewCommands viewCommands_;
    EditingCommands editing_;
    FileCommands fileCommands_;
    ColorDrag drag_;
    HistoryCommands historyCommands_;
    RecoverCommands recover_;
    PaletteCommands palettes_;
    FindCommands find_;
    EmptyListHint emptyListHint_;
    OperationReport operationReport_;
    SolidWorksCommands solidWorksCommands_;
    LevelsCommands levels_;
    MainWindow mainWindow_;
};
