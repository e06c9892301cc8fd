// The steps of the files job that write libraries.

#include "tests/e2e/FilesJob.h"

#include "resources/controls.h"

#include <array>

void FilesJob::CheckFileDialog(const RemoteDialogs::FileDialog& dialog, const std::string& folder,
                               const std::string& fileName) {
    Report().CheckEqual("title", dialog.title, std::string("Color library"));
    Report().CheckEqual("kinds of files", dialog.kinds, {"Color libraries", "All files"});
    Report().CheckEqual("folder", dialog.folder, folder);
    Report().CheckEqual("file name", dialog.fileName, fileName);
}

// The first save writes the library's own file; from then on its file is the one that the dialog
// holds, which is the file that was opened last.
void FilesJob::SaveRetargets() {
    const std::string first = ReadFile("first.tnt");
    const std::string second = ReadFile("second.tnt");
    Open("second.tnt", IDNO);
    Select(0, "One", "0/First/One");
    Main().ClickButton(IDM_mnuFileSave);
    Report().CheckBecomes(
        "backup of the first file", [this] { return ReadFile("first.tnt.bak"); }, first);
    Report().CheckBecomes(
        "first file", [this] { return ReadFile("first.tnt"); }, first);
    Report().CheckEqual("second file", ReadFile("second.tnt"), second);
    Report().CheckEqual("backup of the second file", ReadFile("second.tnt.bak"),
                        std::string("(none)"));
    CheckStatus("Okay second.tnt");
    ChooseFile("mnuFileSave");
    Report().CheckBecomes(
        "backup of the second file", [this] { return ReadFile("second.tnt.bak"); }, second);
    Report().CheckBecomes(
        "second file", [this] { return ReadFile("second.tnt"); }, first);
    const std::string outcome = "Okay second.tnt  -  Earlier content kept as: second (kept ";
    Report().CheckBecomes(
        "status bar", [&] { return Main().InfoText().substr(0, outcome.size()); }, outcome);
    const std::string keptName = Main().InfoText().substr(outcome.find("second (kept "));
    Report().CheckEqual("kept file", ReadFile(keptName), second);
}

void FilesJob::RefusedNames() {
    const RemoteWindow& owner = Main().Window();
    ChooseFile("mnuFileOpen");
    Report().Note("a missing file: " +
                  RemoteDialogs::EnterDoubtfulFileName(owner, File("none.tnt"), IDOK).text);
    RemoteDialogs::CancelFileDialog(owner);
    ChooseFile("mnuFileSaveAs");
    Report().Note("a missing folder: " +
                  RemoteDialogs::EnterDoubtfulFileName(owner, File("none\\x.tnt"), IDOK).text);
    RemoteDialogs::CancelFileDialog(owner);
    CheckRoots({"First", "Second", "Second"});
    CheckStatus("");
}

void FilesJob::SaveAsOverAnExistingFile() {
    const RemoteWindow& owner = Main().Window();
    const std::string old = ReadFile("third.tnt");
    ChooseFile("mnuFileSaveAs");
    CheckFileDialog(RemoteDialogs::ReadFileDialog(owner), Folder(), "second.tnt");
    Report().Note("question: " +
                  RemoteDialogs::EnterDoubtfulFileName(owner, File("third.tnt"), IDNO).text);
    Report().CheckEqual("file after No", ReadFile("third.tnt"), old);
    static_cast<void>(RemoteDialogs::EnterDoubtfulFileName(owner, File("third.tnt"), IDYES));
    CheckStatus("Okay third.tnt");
    Report().CheckEqual("file after Yes", ReadFile("third.tnt"), ReadFile("first.tnt"));
    Report().CheckEqual("backup", ReadFile("third.tnt.bak"), old);
    CheckRoots({"First", "Second", "Second"});
}

void FilesJob::NewLibraryIsSavedAs() {
    const RemoteWindow& owner = Main().Window();
    ChooseFile("mnuFileNew");
    for (const auto& [prompt, preset, answer] :
         {std::array{"Name of the new library:", "New Node3", "Mine"},
          std::array{"Name of the new group:", "New Group1", "Greens"},
          std::array{"Name of the new color:", "New Color1", "Moss"}}) {
        const RemoteDialogs::Question question = RemoteDialogs::AnswerInputBox(owner, answer);
        Report().CheckEqual("prompt", question.prompt, std::string(prompt));
        Report().CheckEqual("preset", question.preset, std::string(preset));
    }
    Main().ClickButton(IDM_mnuFileSave);
    CheckFileDialog(RemoteDialogs::ReadFileDialog(owner), ProgramFolder(), "newtnt.tnt");
    RemoteDialogs::EnterFileName(owner, File("mine.tnt"));
    CheckStatus("Okay mine.tnt");
    // The new color has the values of the editor, which shows the color Red.
    Report().CheckEqual("file", ReadFile("mine.tnt"),
                        std::string("\"D#Mine=3D:2\"\r\n\"G#Greens=3DG1\"\r\n"
                                    "\"E#Moss=3DG1:Moss\xF7"
                                    "255\xF7"
                                    "0\xF7"
                                    "0\xF7"
                                    "1\xF7"
                                    "2\xF7"
                                    "3\xF7"
                                    "4\xF7"
                                    "5\xF7"
                                    "6\"\r\n"));
    Report().CheckEqual("name of the library", Main().Tree().Roots().back(), std::string("Mine"));
}

void FilesJob::PalettesAreImportedAndExported() {
    const RemoteWindow& owner = Main().Window();
    WriteFile("web.gpl", "GIMP Palette\nName: Web\n255 204 77\tSun\n0 0 255\tSky\n");
    ChooseFile("mnuFileImport");
    const RemoteDialogs::FileDialog dialog = RemoteDialogs::ReadFileDialog(owner);
    Report().CheckEqual("title", dialog.title, std::string("Import palettes"));
    Report().CheckEqual("kinds of files", dialog.kinds, {"Palettes", "All files"});
    RemoteDialogs::EnterFileName(owner, File("web.gpl"));
    CheckStatus("Okay web.gpl  -  Colors imported: 2");
    CheckRoots({"First", "Second", "Second", "Mine", "Web"});
    Report().CheckEqual("selected node", Main().Tree().SelectedPath(), std::string("4/Web/Colors"));
    ChooseFile("mnuFileExport");
    Report().CheckEqual("title", RemoteDialogs::ReadFileDialog(owner).title,
                        std::string("Export as palette"));
    RemoteDialogs::EnterFileName(owner, File("Colors.csv"));
    CheckStatus("Okay Colors.csv");
    Report().CheckEqual("table", ReadFile("Colors.csv"),
                        std::string("\xEF\xBB\xBFgroup,name,red,green,blue,ambient,diffuse,"
                                    "specular,shininess,transparency,emission\r\n"
                                    ",Sun,255,204,77,1,2,3,4,5,6\r\n"
                                    ",Sky,0,0,255,1,2,3,4,5,6\r\n"));
    ChooseFile("mnuFileExport");
    RemoteDialogs::EnterFileName(owner, File("out.gpl"));
    CheckMessage(RemoteDialogs::AnswerMessageBox(owner, IDOK), "Attention",
                 "This format does not hold everything:\r\n"
                 "Colors without their six material values: 2\r\nExport all the same?");
    CheckStatus("Okay out.gpl");
    Report().CheckEqual("palette", ReadFile("out.gpl"),
                        std::string("GIMP Palette\nName: Colors\nColumns: 0\n#\n"
                                    "255 204  77\tSun\n  0   0 255\tSky\n"));
}
