#include "tests/e2e/FilesJob.h"

#include "resources/controls.h"

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

const std::string kFirst = "\"D#First=0D:3\"\r\n"
                           "\"G#One=0DG1\"\r\n"
                           "\"G#Two=0DG2\"\r\n"
                           "\"E#Red=0DG1:Red\xF7"
                           "255\xF7"
                           "0\xF7"
                           "0\xF7"
                           "1\xF7"
                           "2\xF7"
                           "3\xF7"
                           "4\xF7"
                           "5\xF7"
                           "6\"\r\n";
const std::string kSecond = "\"D#Second=0D:1\"\r\n\"G#Only=0DG1\"\r\n";

} // namespace

void FilesJob::Work() {
    Report().Step("start the program", [this] { Start(); });
    if (!IsMainShown())
        return;
    Report().Step("cancel open", [this] { CancelOpen(); });
    Report().Step("open two libraries", [this] { OpenTwoLibraries(); });
    Report().Step("open what is no library", [this] { OpenWhatIsNoLibrary(); });
    Report().Step("save retargets to the file of the dialog", [this] { SaveRetargets(); });
    Report().Step("names that the dialogs refuse", [this] { RefusedNames(); });
    Report().Step("save as over an existing file", [this] { SaveAsOverAnExistingFile(); });
    Report().Step("a new library is saved as", [this] { NewLibraryIsSavedAs(); });
    Report().Step("palettes are imported and exported",
                  [this] { PalettesAreImportedAndExported(); });
    Report().Step("close a group and every library", [this] { CloseGroupAndLibraries(); });
    Report().Step("load a library at every start", [this] { LoadAtEveryStart(); });
    Report().Step("start with the library", [this] { StartWithTheLibrary(); });
    Report().Step("start without it again", [this] { StartWithoutIt(); });
}

void FilesJob::Start() {
    for (const fs::directory_entry& old : fs::directory_iterator(PathOf(Folder())))
        fs::remove(old.path());
    WriteFile("first.tnt", kFirst);
    WriteFile("second.tnt", kSecond);
    WriteFile("third.tnt", "what was there");
    WriteFile("invalid.tnt", "no library");
    StartMain();
    CheckRoots({});
    Main().ChooseFromMenu("mnuView", "mnuViewBarStandards"); // the buttons of open, save and close
}

void FilesJob::CancelOpen() {
    const std::string status = Main().InfoText();
    Main().ClickButton(IDM_mnuFileOpen);
    const RemoteDialogs::FileDialog dialog = RemoteDialogs::ReadFileDialog(Main().Window());
    Report().CheckEqual("title", dialog.title, std::string("Color library"));
    Report().CheckEqual("kinds of files", dialog.kinds, {"Color libraries", "All files"});
    Report().CheckEqual("file name", dialog.fileName, std::string());
    RemoteDialogs::CancelFileDialog(Main().Window());
    CheckRoots({});
    CheckStatus(status);
}

void FilesJob::OpenTwoLibraries() {
    Open("first.tnt", IDNO);
    CheckRoots({"First"});
    Report().CheckEqual("groups", Main().Tree().Children(0), {"One", "Two"});
    Open("second.tnt", IDNO);
    CheckRoots({"First", "Second"});
    Report().CheckEqual("selected node", Main().Tree().SelectedPath(), std::string("1/Second"));
}

void FilesJob::OpenWhatIsNoLibrary() {
    ChooseFile("mnuFileOpen");
    RemoteDialogs::EnterFileName(Main().Window(), File("invalid.tnt"));
    CheckMessage(RemoteDialogs::AnswerMessageBox(Main().Window(), IDOK), "Attention",
                 "Invalid format: " + File("invalid.tnt"));
    CheckMessage(RemoteDialogs::AnswerMessageBox(Main().Window(), IDOK), "Attention",
                 "The library could not be opened: " + File("invalid.tnt"));
    CheckRoots({"First", "Second"});
    CheckStatus("");
}

void FilesJob::CloseGroupAndLibraries() {
    Select(0, "Two", "0/First/Two");
    ChooseFile("mnuFileClose");
    Report().CheckBecomes(
        "groups", [this] { return Main().Tree().Children(0); }, std::vector<std::string>{"One"});
    for (std::size_t left = Main().Tree().Roots().size(); left > 0; --left) {
        Main().Tree().ClickRoot(left - 1);
        Main().ClickButton(IDM_mnuFileClose);
        Report().CheckBecomes(
            "main nodes left", [this] { return Main().Tree().Roots().size(); }, left - 1);
    }
    const std::string before = ReadFile("third.tnt");
    ChooseFile("mnuFileSave");
    ChooseFile("mnuFileSaveAs"); // a dialog would keep the next step from its menu
    Report().CheckEqual("file after a save of nothing", ReadFile("third.tnt"), before);
}

void FilesJob::LoadAtEveryStart() {
    Open("third.tnt", IDYES);
    SaveSettings();
    QuitMain();
}

void FilesJob::StartWithTheLibrary() {
    const std::string prompt = "No longer load this library at start? ";
    StartMain();
    CheckRoots({"First"});
    ChooseFile("mnuFileSave");
    CheckStatus("Okay third.tnt");
    ChooseFile("mnuFileCancelAutoload");
    CheckMessage(RemoteDialogs::AnswerMessageBox(Main().Window(), IDNO), "Color libraries",
                 prompt + File("third.tnt"));
    ChooseFile("mnuFileCancelAutoload");
    CheckMessage(RemoteDialogs::AnswerMessageBox(Main().Window(), IDYES), "Color libraries",
                 prompt + File("third.tnt"));
    ChooseFile("mnuFileCancelAutoload");
    CheckMessage(RemoteDialogs::AnswerMessageBox(Main().Window(), IDNO), "Color libraries", prompt);
    SaveSettings();
    QuitMain();
}

void FilesJob::StartWithoutIt() {
    StartMain();
    CheckRoots({});
    QuitMain();
}

std::string FilesJob::Folder() const {
    return fs::path(PathOf(File("x"))).parent_path().string();
}

void FilesJob::WriteFile(const std::string& name, const std::string& bytes) const {
    std::ofstream(PathOf(File(name)), std::ios::binary) << bytes;
}

std::string FilesJob::ReadFile(const std::string& name) const {
    std::ifstream file(PathOf(File(name)), std::ios::binary);
    if (!file)
        return "(none)";
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void FilesJob::ChooseFile(const std::string& entry) const {
    Main().ChooseFromMenu("mnuFile", entry);
}

void FilesJob::Open(const std::string& name, int answer) {
    ChooseFile("mnuFileOpen");
    RemoteDialogs::EnterFileName(Main().Window(), File(name));
    CheckMessage(RemoteDialogs::AnswerMessageBox(Main().Window(), answer), "Color libraries",
                 "Load this library at every start?\r\n" + File(name));
    CheckStatus("Okay " + name);
}

void FilesJob::CheckMessage(const RemoteDialogs::Message& message, const std::string& title,
                            const std::string& text) {
    Report().CheckEqual("title of the box", message.title, title);
    Report().CheckEqual("text of the box", message.text, text);
}

void FilesJob::CheckStatus(const std::string& text) {
    Report().CheckBecomes(
        "status bar", [this] { return Main().InfoText(); }, text);
}

void FilesJob::CheckRoots(const std::vector<std::string>& roots) {
    Report().CheckBecomes(
        "main nodes", [this] { return Main().Tree().Roots(); }, roots);
}

void FilesJob::Select(std::size_t root, const std::string& group, const std::string& path) {
    Main().Tree().ClickChild(root, group);
    Report().CheckBecomes(
        "selected node", [this] { return Main().Tree().SelectedPath(); }, path);
}

void FilesJob::SaveSettings() const {
    Main().ChooseFromMenu("mnuOptions", "mnuOptionsSaveSettings");
}
