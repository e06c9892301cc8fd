#include "app/Application.h"
#include "common/BusyRetry.h"
#include "mainwindow/frmMain.h"
#include "platform/BannerPictures.h"
#include "platform/BusyMessageFilter.h"
#include "platform/ComApartment.h"
#include "platform/LastResort.h"
#include "platform/LibrarySearch.h"
#include "platform/MessageLoop.h"
#include "platform/ProgramFolder.h"
#include "platform/RunningObjects.h"
#include "platform/SilenceAtScopeEnd.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32CalendarClock.h"
#include "platform/Win32Clipboard.h"
#include "platform/Win32Files.h"
#include "platform/Win32PrivateProfile.h"
#include "platform/Win32Prompts.h"
#include "platform/Win32Registry.h"
#include "platform/Win32Shell.h"
#include "platform/Win32TextCollation.h"
#include "platform/Win32WaitingClock.h"
#include "support/language/ErrorReporter.h"
#include "support/windows/frmAbout.h"
#include "support/windows/frmProgress.h"
#include "support/windows/frmTxtView.h"

#include <algorithm>
#include <chrono>
#include <windows.h>

namespace {

constexpr const char* kVersion = TNT_VERSION;
// To make and paint the window takes longer than most of what it could tell of.
constexpr std::chrono::milliseconds kProgressPatience(1000);

std::vector<bool> AreLinks(const std::vector<std::string>& addresses) {
    std::vector<bool> links(addresses.size());
    std::transform(addresses.begin(), addresses.end(), links.begin(),
                   [](const std::string& address) { return !address.empty(); });
    return links;
}

// Joins the ports, the forms and the program, and runs it.
int RunProgram() {
    const ComApartment apartment;
    const BusyMessageFilter messageFilter;
    Win32WaitingClock clock;
    const Win32CalendarClock calendar;
    BusyRetry retry(clock);
    RunningObjects automation(retry);
    const Win32AnsiCodePage codePage;
    const Win32TextCollation collation;
    Win32Files files;
    Win32PrivateProfile profile;
    Win32Registry registry(codePage);
    Win32Shell shell(codePage);
    Win32EventPump events;

    HWND mainWindow = nullptr;
    const OwnerWindow owner = [&mainWindow] { return mainWindow; };
    Win32Prompts prompts(owner);
    Win32Clipboard clipboard(owner);
    clsMultiLanguage language(profile, files, codePage);
    ErrorReporter errors(prompts, language);

    const std::string programFolder = ProgramFolder();
    const std::string bannerFolder = programFolder + "\\banners";
    BannerPictures banners(bannerFolder);
    const std::vector<std::string> addresses = AddressesOfBanners(
        files.ReadWhole(bannerFolder + "\\banners.txt").value_or(""), banners.Numbers());
    banners.SetLinks(AreLinks(addresses));
    frmMain main(errors, banners);
    mainWindow = main.Handle();
    AboutOnDemand about(mainWindow, errors, banners);
    TextViewerOnDemand textViewer(mainWindow, errors, banners);
    frmProgress progress(mainWindow, errors, clock, kProgressPatience);

    Application application(
        {files, codePage, registry, prompts, clipboard, collation, shell, events, automation, retry,
         language, errors, calendar},
        {main.View(), main, main, about, textViewer, progress, progress, progress},
        {programFolder, kVersion, addresses, FolderForCodePage(programFolder, codePage)});
    // The application goes first, and the forms after it: the main window still gets messages then,
    // such as the focus from a text viewer that is destroyed.
    const SilenceAtScopeEnd silence(main);
    main.Attach(application.MainWindowEvents());
    about.Attach(application.AboutWindowEvents());
    textViewer.Attach(application.TextViewerWindowEvents());
    progress.Attach(application.ProgressWindowEvents());
    application.Start();
    return RunMessageLoop();
}

} // namespace

int WINAPI wWinMain(_In_ HINSTANCE, _In_opt_ HINSTANCE, _In_ LPWSTR, _In_ int) {
    SearchSystemLibrariesOnly();
    // A library on a drive without a disk is a file that is not there, not a question.
    SetErrorMode(SEM_FAILCRITICALERRORS);
    return RunWithLastResort(RunProgram, "TNT4SWX");
}
