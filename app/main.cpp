#include "app/Application.h"
#include "common/BusyRetry.h"
#include "common/ProgramNames.h"
#include "common/WorkerThread.h"
#include "mainwindow/frmFind.h"
#include "mainwindow/frmLevels.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/frmRecover.h"
#include "platform/BusyMessageFilter.h"
#include "platform/ComApartment.h"
#include "platform/CrashHandler.h"
#include "platform/LastResort.h"
#include "platform/LibrarySearch.h"
#include "platform/MessageLoop.h"
#include "platform/ProgramFolder.h"
#include "platform/RunningObjects.h"
#include "platform/SilenceAtScopeEnd.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32CalendarClock.h"
#include "platform/Win32Clipboard.h"
#include "platform/Win32EventPump.h"
#include "platform/Win32Files.h"
#include "platform/Win32Folders.h"
#include "platform/Win32PrivateProfile.h"
#include "platform/Win32Prompts.h"
#include "platform/Win32Registry.h"
#include "platform/Win32RunningCopies.h"
#include "platform/Win32Shell.h"
#include "platform/Win32TextCollation.h"
#include "platform/Win32Ticker.h"
#include "platform/Win32WaitingClock.h"
#include "support/language/ErrorReporter.h"
#include "support/windows/BannerPictures.h"
#include "support/windows/PatientProgress.h"
#include "support/windows/frmAbout.h"
#include "support/windows/frmProgress.h"
#include "support/windows/frmTxtView.h"

#include <chrono>
#include <windows.h>

namespace {

constexpr const char* kVersion = TNT_VERSION;
// Shorter work is over before its window could be painted.
constexpr std::chrono::milliseconds kProgressPatience(1000);

// What the program asks Windows for, each part made of those before it.
struct Ports {
    ComApartment apartment;
    BusyMessageFilter messageFilter;
    Win32WaitingClock clock;
    Win32CalendarClock calendar;
    BusyRetry retry{clock};
    RunningObjects automation{retry};
    Win32AnsiCodePage codePage;
    Win32TextCollation collation;
    Win32Files files;
    Win32Folders folders;
    Win32RunningCopies copies{ProgramNames::Title};
    WorkerThread background;
    Win32PrivateProfile profile;
    Win32Registry registry{codePage};
    Win32Shell shell{codePage};
    Win32EventPump events;

    HWND mainWindow = nullptr; // owns every box, as soon as it is made
    OwnerWindow owner = [this] { return mainWindow; };
    Win32Prompts prompts{owner};
    Win32Clipboard clipboard{owner};
    clsMultiLanguage language{profile, files, codePage};
    ErrorReporter errors{prompts, language};
    Win32Ticker ticker{errors};
};

// Empty where there is no folder for data.
std::string RecoveryFolderIn(const std::string& dataFolder) {
    return dataFolder.empty() ? "" : dataFolder + ProgramNames::RecoveryFolder;
}

// The windows beside the main one.
struct AuxiliaryForms {
    AuxiliaryForms(HWND mainWindow, Ports& ports, const BannerPictures& banners)
        : about(mainWindow, ports.errors, banners), textViewer(mainWindow, ports.errors, banners),
          progressWindow(mainWindow, ports.errors),
          progress(progressWindow, ports.ticker, ports.clock, kProgressPatience),
          recover(mainWindow, ports.errors), find(mainWindow, ports.errors),
          levels(mainWindow, ports.errors) {}

    AboutOnDemand about;
    TextViewerOnDemand textViewer;
    ProgressOnDemand progressWindow;
    PatientProgress progress;
    RecoverOnDemand recover;
    FindOnDemand find;
    LevelsOnDemand levels;
};

Application::Platform PlatformOf(Ports& ports) {
    return {.files = ports.files,
            .codePage = ports.codePage,
            .registry = ports.registry,
            .prompts = ports.prompts,
            .clipboard = ports.clipboard,
            .collation = ports.collation,
            .shell = ports.shell,
            .events = ports.events,
            .automation = ports.automation,
            .retry = ports.retry,
            .language = ports.language,
            .errors = ports.errors,
            .calendar = ports.calendar,
            .folders = ports.folders,
            .copies = ports.copies,
            .background = ports.background};
}

Application::Windows WindowsOf(frmMain& main, AuxiliaryForms& auxiliary) {
    return {.mainView = main.View(),
            .mainWindow = main,
            .mainForm = main,
            .about = auxiliary.about,
            .textViewer = auxiliary.textViewer,
            .progress = auxiliary.progress,
            .progressWindow = auxiliary.progressWindow,
            .recover = auxiliary.recover,
            .find = auxiliary.find,
            .levels = auxiliary.levels};
}

void Attach(Application& application, frmMain& main, AuxiliaryForms& auxiliary) {
    main.Attach(application.MainWindowEvents());
    auxiliary.about.Attach(application.AboutWindowEvents());
    auxiliary.textViewer.Attach(application.TextViewerWindowEvents());
    auxiliary.progressWindow.Attach(application.ProgressWindowEvents());
    auxiliary.recover.Attach(application.RecoverWindowEvents());
    auxiliary.find.Attach(application.FindWindowEvents());
    auxiliary.levels.Attach(application.LevelsWindowEvents());
}

// Joins the ports, the forms and the program, and runs it.
int RunProgram() {
    Ports ports;
    const std::string programFolder = ProgramFolder();
    const std::string bannerFolder = programFolder + "\\banners";
    BannerPictures banners(bannerFolder);
    const std::vector<std::string> addresses = AddressesOfBanners(
        ports.files.ReadWhole(bannerFolder + "\\banners.txt").value_or(""), banners.Numbers());
    banners.SetLinks(AreLinks(addresses));
    frmMain main(ports.errors, banners);
    ports.mainWindow = main.Handle();
    AuxiliaryForms auxiliary(main.Handle(), ports, banners);

    const std::string recoveryFolder = RecoveryFolderIn(LocalDataFolder());
    Application application(PlatformOf(ports), WindowsOf(main, auxiliary),
                            {.programFolder = programFolder,
                             .version = kVersion,
                             .bannerAddresses = addresses,
                             .languageFolder = FolderForCodePage(programFolder, ports.codePage),
                             .recoveryFolder = recoveryFolder});
    const CrashHandler crashes(
        {.folder = recoveryFolder, .program = std::string(ProgramNames::Title) + " " + kVersion},
        [&] { application.KeepAfterCrash(); });
    // The application goes first, and the forms after it: the main window still gets messages then,
    // such as the focus from a text viewer that is destroyed.
    const SilenceAtScopeEnd silence(main);
    Attach(application, main, auxiliary);
    try {
        application.Start();
        return RunMessageLoop();
    } catch (...) {
        application.KeepLibraries();
        throw;
    }
}

} // namespace

int WINAPI wWinMain(_In_ HINSTANCE, _In_opt_ HINSTANCE, _In_ LPWSTR, _In_ int) {
    SearchSystemLibrariesOnly();
    // A library on a drive without a disk is a file that is not there, not a question.
    SetErrorMode(SEM_FAILCRITICALERRORS);
    return RunWithLastResort(RunProgram, "TNT4SWX");
}
