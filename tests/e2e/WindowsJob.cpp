#include "tests/e2e/WindowsJob.h"

#include "common/CalendarText.h"
#include "common/ProgramNames.h"
#include "platform/Utf16.h"
#include "platform/Win32CalendarClock.h"
#include "platform/Win32Folders.h"
#include "resources/controls.h"
#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteDialogs.h"

#include <commctrl.h>
#include <filesystem>
#include <fstream>

namespace {

constexpr int kMargin = 10; // around the window, pixels

// Colors of the sample with "red" in their names, as the window that finds them lists them.
const std::vector<RemoteList::Row> kHits = {{"Red plastic", "Plastics", "Materials"},
                                            {"Red rubber", "Rubber", "Materials"}};

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
    Report().Step("recover", [this] {
        ClickRecover();
        SeeRecover("&Delete ...");
    });
    Report().Step("close it by Escape", [this] { CloseRecover(VK_ESCAPE, 0); });
    Report().Step("open a sample from the empty list", [this] { OpenSample(); });
    Report().Step("find while typing", [this] { Find(); });
    Report().Step("go to a hit by Enter", [this] { GoToHit(); });
    Report().Step("go to the next hit by F3", [this] { GoToNextHit(); });
    Report().Step("find like the active color", [this] { FindLikeActiveColor(); });
    Report().Step("a larger window that finds", [this] { GrowFind(); });
    Report().Step("select a face", [this] { SelectFace(); });
    Report().Step("which color is seen",
                  [this] { SeeLevels("Which color is seen", "The color of the part is seen."); });
    Report().Step("a larger window that tells it", [this] { GrowLevels(); });
    Report().Step("change over to German", [this] { SpeakGerman(); });
    Report().Step("find in German", [this] { FindInGerman(); });
    Report().Step("close it by Escape again", [this] { CloseFind(); });
    Report().Step("which color is seen, in German", [this] {
        SeeLevels("Welche Farbe ist zu sehen", "Zu sehen ist die Farbe des Teils.");
    });
    Report().Step("close it by Escape, too", [this] { CloseLevels(); });
    Report().Step("about in German", [this] { OpenAbout("&Systeminfo ..."); });
    Report().Step("close About by Escape again", [this] { CloseAbout(); });
    Report().Step("viewer in German",
                  [this] { OpenViewer("TNT4SWX - Farbbibliotheken für SolidWorks"); });
    Report().Step("close the viewer by Escape again", [this] { CloseViewer(); });
    Report().Step("progress in German", [this] { ClearWholePart("&Stopp"); });
    Report().Step("stop by Enter again", [this] { Stop(); });
    Report().Step("recover in German", [this] {
        Choose(IDM_mnuFileRecover);
        SeeRecover("&Löschen ...");
    });
    Report().Step("bring a library back by Enter", [this] { CloseRecover(VK_RETURN, 2); });
    Report().Step("end the programs", [this] {
        EndMain();
        EndStandIn();
    });
}

// The stand-in has a part that takes a while.
void WindowsJob::Start() {
    StartStandIn("--scenario features=4000");
    StartMain();
    Main().Window().Place(kMargin, kMargin, GetSystemMetrics(SM_CXSCREEN) - 2 * kMargin,
                          GetSystemMetrics(SM_CYSCREEN) - 2 * kMargin);
    LeaveLibraries(); // after the first picture's texts: it is that of a new user
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

void WindowsJob::LeaveLibraries() {
    LeaveLibrary("20240102-100000000-1-1", "Lacke", "C:\\Users\\Public\\Farben\\Lacke.tnt");
    LeaveLibrary("20240102-100000000-1-2", "Metals", "");
}

// As if another copy of the program had been killed a moment ago while it was open.
void WindowsJob::LeaveLibrary(const std::string& id, const std::string& name,
                              const std::string& file) {
    const std::string folder = LocalDataFolder() + ProgramNames::RecoveryFolder;
    static_cast<void>(Win32Folders().Make(folder));
    const std::wstring path = ToUtf16(folder + "\\" + id);
    std::ofstream(std::filesystem::path(path + L".tnt"), std::ios::binary)
        << "\"D#" + name + "=0D:1\"\r\n\"G#Group=0DG1\"\r\n";
    std::ofstream(std::filesystem::path(path + L".txt"), std::ios::binary)
        << name + "\r\n" + file + "\r\n" + CalendarText(Win32CalendarClock().Now()) + "\r\n12\r\n";
}

LRESULT WindowsJob::CountNodes() const {
    return SendMessageW(Main().Window().Child(IDC_tvColor).Handle(), TVM_GETCOUNT, 0, 0);
}

// The empty list offers it as its first link.
void WindowsJob::ClickRecover() {
    constexpr int kFirstLink = 2; // number of the list's line, from the top
    const RemoteWindow link = Main().Window().Child(IDC_lvColor).Child(kFirstLink);
    Report().CheckEqual("link", link.Text(),
                        std::string("Recover libraries that were not saved ..."));
    link.Click();
}

void WindowsJob::SeeRecover(const std::string& deleteCaption) {
    nodesBefore_ = CountNodes();
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

void WindowsJob::CloseRecover(WORD key, LRESULT newNodes) {
    RealInput::PressKey(key);
    CheckGone(recover_);
    Report().CheckBecomes(
        "nodes of the tree", [this] { return CountNodes(); }, nodesBefore_ + newNodes);
}

void WindowsJob::OpenSample() {
    constexpr int kTitle = 1; // numbers of the list's lines, from the top
    constexpr int kFirstSample = 6;
    const RemoteWindow list = Main().Window().Child(IDC_lvColor);
    Report().CheckEqual("empty list", list.Child(kTitle).Text(),
                        std::string("No library is open."));
    const RemoteWindow link = list.Child(kFirstSample);
    Report().CheckEqual("link", link.Text(), std::string("Open the sample: materials"));
    link.Click();
    Report().CheckBecomes(
        "status bar", [this] { return Main().InfoText(); }, std::string("Okay materials.tnt"));
    Report().CheckBecomes(
        "the lines are gone", [link] { return link.IsVisible(); }, false);
}

void WindowsJob::Find() {
    RealInput::HoldKey(VK_CONTROL);
    RealInput::PressKey('F');
    RealInput::ReleaseKey(VK_CONTROL);
    find_ = Wait(L"frmFind");
    Report().CheckBecomes(
        "the text box has the focus",
        [this] { return find_.FocusedChild() == find_.Child(IDC_txtFind).Handle(); }, true);
    RealInput::TypeText(L"red");
    CheckHits(kHits);
    Report().CheckBecomes(
        "it is painted", [this] { return find_.IsPainted(); }, true);
}

void WindowsJob::CheckHits(const std::vector<RemoteList::Row>& rows) {
    Report().CheckBecomes(
        "rows", [this] { return RemoteList(find_.Child(IDC_lvFind)).ReadRows(); }, rows);
}

void WindowsJob::GoToHit() {
    RealInput::PressKey(VK_RETURN);
    Report().CheckBecomes(
        "selected colors", [this] { return Main().List().SelectedNames(); },
        RemoteList::Row{kHits.front().front()});
    Report().CheckBecomes(
        "the list has the focus",
        [this] {
            return Main().Window().FocusedChild() == Main().Window().Child(IDC_lvColor).Handle();
        },
        true);
}

void WindowsJob::GoToNextHit() {
    RealInput::PressKey(VK_F3);
    Report().CheckBecomes(
        "selected colors", [this] { return Main().List().SelectedNames(); },
        RemoteList::Row{kHits.back().front()});
}

void WindowsJob::FindLikeActiveColor() {
    RealInput::HoldKey(VK_CONTROL);
    RealInput::PressKey('F');
    RealInput::ReleaseKey(VK_CONTROL);
    Report().CheckBecomes(
        "the text box has the focus",
        [this] { return find_.FocusedChild() == find_.Child(IDC_txtFind).Handle(); }, true);
    RealInput::PressKey(VK_DELETE); // the text is selected
    RealInput::PressWithAlt('L');
    Report().CheckBecomes(
        "the nearest", [this] { return RemoteList(find_.Child(IDC_lvFind)).ReadRow(0); },
        RemoteList::Row{kHits.back()[0], kHits.back()[1], kHits.back()[2], "0.00"});
}

void WindowsJob::GrowFind() {
    const RECT place = find_.Bounds();
    find_.Place(kMargin, place.top, place.right - kMargin, GetSystemMetrics(SM_CYSCREEN) / 2);
    Report().CheckBecomes(
        "it is painted", [this] { return find_.IsPainted(); }, true);
}

void WindowsJob::FindInGerman() {
    Report().CheckBecomes(
        "caption", [this] { return find_.Title(); }, std::string("Farben suchen"));
    Report().CheckBecomes(
        "difference", [this] { return RemoteList(find_.Child(IDC_lvFind)).ReadRow(0).back(); },
        std::string("0,00"));
}

void WindowsJob::CloseFind() {
    Choose(IDM_mnuEditFind);
    Report().CheckBecomes(
        "it has the focus",
        [this] { return find_.FocusedChild() == find_.Child(IDC_txtFind).Handle(); }, true);
    RealInput::PressKey(VK_ESCAPE);
    CheckGone(find_);
}

// Through automation: the window of the stand-in is covered.
void WindowsJob::SelectFace() {
    reader_.SelectFace(2);
}

void WindowsJob::SeeLevels(const std::string& caption, const std::string& sentence) {
    Choose(IDM_mnuSWXColorLevels);
    levels_ = Wait(L"frmLevels");
    Report().CheckBecomes(
        "caption", [this] { return levels_.Title(); }, caption);
    Report().CheckBecomes(
        "sentence", [this] { return levels_.Child(IDC_lblLevels).Text(); }, sentence);
    Report().CheckEqual("levels", RemoteList(levels_.Child(IDC_lvLevels)).RowCount(), 4);
    Report().CheckBecomes(
        "it is painted", [this] { return levels_.IsPainted(); }, true);
}

void WindowsJob::GrowLevels() {
    const RECT place = levels_.Bounds();
    levels_.Place(kMargin, place.top, place.right - kMargin, GetSystemMetrics(SM_CYSCREEN) / 2);
    Report().CheckBecomes(
        "it is painted", [this] { return levels_.IsPainted(); }, true);
}

void WindowsJob::CloseLevels() {
    Choose(IDM_mnuSWXColorLevels);
    Report().CheckBecomes(
        "the list has the focus",
        [this] { return levels_.FocusedChild() == levels_.Child(IDC_lvLevels).Handle(); }, true);
    RealInput::PressKey(VK_ESCAPE);
    CheckGone(levels_);
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
