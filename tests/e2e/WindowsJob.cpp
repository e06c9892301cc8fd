#include "tests/e2e/WindowsJob.h"

#include "common/ProgramNames.h"
#include "platform/Utf16.h"
#include "platform/Win32Folders.h"
#include "resources/controls.h"
#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteDialogs.h"

#include <commctrl.h>
#include <filesystem>
#include <fstream>

namespace {

constexpr int kMargin = 10; // around the window, pixels

} // namespace

void WindowsJob::Work() {
    Report().Step("start the programs", [this] { Start(); });
    if (!IsMainShown() || !IsStandInShown())
        return;
    Report().Step("about", [this] { OpenAbout("&System info ..."); });
    Report().Step("close About by Escape", [this] { CloseAbout(); });
    Report().Step("viewer", [this] { OpenViewer("TNT4SWX - color libraries for SolidWorks"); });
    Report().Step("close the viewer by Escape", [this] { CloseViewer(); });
    Report().Step("progress", [this] { ClearWholePart("&Stop"); });
    Report().Step("stop by Enter", [this] { Stop(); });
    Report().Step("recover", [this] { OpenRecover("&Delete ..."); });
    Report().Step("close it by Escape", [this] { CloseRecover(VK_ESCAPE, 0); });
    Report().Step("change over to German", [this] { SpeakGerman(); });
    Report().Step("about in German", [this] { OpenAbout("&Systeminfo ..."); });
    Report().Step("close About by Escape again", [this] { CloseAbout(); });
    Report().Step("viewer in German",
                  [this] { OpenViewer("TNT4SWX - Farbbibliotheken für SolidWorks"); });
    Report().Step("close the viewer by Escape again", [this] { CloseViewer(); });
    Report().Step("progress in German", [this] { ClearWholePart("&Stopp"); });
    Report().Step("stop by Enter again", [this] { Stop(); });
    Report().Step("recover in German", [this] { OpenRecover("&Löschen ..."); });
    Report().Step("bring a library back by Enter", [this] { CloseRecover(VK_RETURN, 2); });
    Report().Step("end the programs", [this] {
        EndMain();
        EndStandIn();
    });
}

// The stand-in has a part that takes a while.
void WindowsJob::Start() {
    StartStandIn("--scenario features=4000");
    LeaveLibrary("20240102-100000000-1-1", "Lacke", "C:\\Users\\Public\\Farben\\Lacke.tnt");
    LeaveLibrary("20240102-100000000-1-2", "Metals", "");
    StartMain();
    Main().Window().Place(kMargin, kMargin, GetSystemMetrics(SM_CXSCREEN) - 2 * kMargin,
                          GetSystemMetrics(SM_CYSCREEN) - 2 * kMargin);
}

void WindowsJob::SpeakGerman() {
    Choose(IDM_mnuOptionsLngGerman);
    Report().CheckBecomes(
        "caption of the editor", [this] { return Main().Window().Child(IDC_fraShowColor).Text(); },
        std::string("Aktive Farbe"));
}

void WindowsJob::OpenAbout(const std::string& systemInformation) {
    Choose(IDM_mnuHlpAbout);
    about_ = Wait(L"frmAbout");
    Report().CheckEqual("button", about_.Child(IDC_cmdSysInfo).Text(), systemInformation);
    Report().CheckBecomes(
        "OK has the focus",
        [this] { return about_.FocusedChild() == about_.Child(IDC_cmdOK).Handle(); }, true);
}

void WindowsJob::CloseAbout() {
    RealInput::PressKey(VK_ESCAPE);
    CheckGone(about_);
}

void WindowsJob::OpenViewer(const std::string& firstLine) {
    Choose(IDM_mnuHlpShowReadme);
    viewer_ = Wait(L"frmTxtView");
    Report().CheckBecomes(
        "first line",
        [this] {
            const std::string text = viewer_.Child(IDC_rtbShowtext).Text();
            return text.substr(0, text.find('\r'));
        },
        firstLine);
    Report().CheckBecomes(
        "it is painted", [this] { return viewer_.IsPainted(); }, true);
}

void WindowsJob::CloseViewer() {
    RealInput::PressKey(VK_ESCAPE);
    CheckGone(viewer_);
}

void WindowsJob::ClearWholePart(const std::string& stop) {
    Choose(IDM_mnuSWXClearColorPart);
    progress_ = Wait(L"frmProgress");
    Report().CheckEqual("button", progress_.Child(IDC_cmdCancel).Text(), stop);
}

void WindowsJob::Stop() {
    RealInput::PressKey(VK_RETURN);
    const RemoteDialogs::Message box = RemoteDialogs::AnswerMessageBox(Main().Window(), IDOK);
    Report().CheckEqual("message", box.text, std::string("ProgressStopped"));
    CheckGone(progress_);
}

// As if the program had been killed while it was open.
void WindowsJob::LeaveLibrary(const std::string& id, const std::string& name,
                              const std::string& file) {
    const std::string folder = LocalDataFolder() + ProgramNames::RecoveryFolder;
    static_cast<void>(Win32Folders().Make(folder));
    const std::wstring path = ToUtf16(folder + "\\" + id);
    std::ofstream(std::filesystem::path(path + L".tnt"), std::ios::binary)
        << "\"D#" + name + "=0D:1\"\r\n\"G#Group=0DG1\"\r\n";
    std::ofstream(std::filesystem::path(path + L".txt"), std::ios::binary)
        << name + "\r\n" + file + "\r\n2026-11-0" + id.back() + " 10:30:00\r\n12\r\n";
}

void WindowsJob::OpenRecover(const std::string& deleteCaption) {
    Choose(IDM_mnuFileRecover);
    recover_ = Wait(L"frmRecover");
    Report().CheckEqual("button", recover_.Child(IDC_cmdDelete).Text(), deleteCaption);
    Report().CheckBecomes(
        "the list has the focus",
        [this] { return recover_.FocusedChild() == recover_.Child(IDC_lvRecover).Handle(); }, true);
    Report().CheckBecomes(
        "it is painted", [this] { return recover_.IsPainted(); }, true);
    Report().CheckEqual(
        "rows", SendMessageW(recover_.Child(IDC_lvRecover).Handle(), LVM_GETITEMCOUNT, 0, 0),
        LRESULT{2});
}

void WindowsJob::CloseRecover(WORD key, LRESULT nodes) {
    RealInput::PressKey(key);
    CheckGone(recover_);
    Report().CheckBecomes(
        "nodes of the tree",
        [this] {
            return SendMessageW(Main().Window().Child(IDC_tvColor).Handle(), TVM_GETCOUNT, 0, 0);
        },
        nodes);
}

void WindowsJob::Choose(int command) {
    PostMessageW(Main().Window().Handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
}

RemoteWindow WindowsJob::Wait(const wchar_t* className) const {
    DWORD process = 0;
    GetWindowThreadProcessId(Main().Window().Handle(), &process);
    return RemoteWindow::WaitFor(className, process);
}

void WindowsJob::CheckGone(const RemoteWindow& window) {
    Report().CheckBecomes(
        "the window is gone", [&] { return !window.IsVisible(); }, true);
}
