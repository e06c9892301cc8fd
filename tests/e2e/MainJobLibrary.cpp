// The steps of the main job that work with libraries and files.

#include "tests/e2e/MainJob.h"

#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32Files.h"
#include "tests/e2e/RemoteDialogs.h"

#include <stdexcept>

std::string MainJob::ReadLibraryFile() const {
    const std::optional<std::string> bytes = Win32Files().ReadWhole(libraryPath_);
    if (!bytes)
        throw std::runtime_error("The library cannot be read: " + libraryPath_);
    return Win32AnsiCodePage(1252).Decode(*bytes);
}

void MainJob::OpenFromMenu() {
    main_->ChooseFromMenu("mnuFile", "mnuFileOpen");
    RemoteDialogs::EnterFileName(main_->Window(), libraryPath_);
    const RemoteDialogs::Message question = RemoteDialogs::AnswerMessageBox(main_->Window(), IDNO);
    report_.Note("question: " + question.title + " / " + question.text);
    report_.Check(question.text.ends_with("\n" + libraryPath_), "the question names the file");
    report_.CheckBecomes(
        "status bar", [this] { return main_->InfoText(); }, std::string("Okay materials.tnt"));
}

void MainJob::OpenLibrary() {
    OpenFromMenu();
    report_.CheckEqual("main nodes", main_->Tree().Roots(), {"Materials"});
    report_.CheckEqual("groups", main_->Tree().Children(0), GroupNames(library_));
}

void MainJob::CheckGroup(std::size_t root, const LibraryGroup& group) {
    main_->Tree().ClickChild(root, group.name);
    report_.CheckBecomes(
        "selected node", [this] { return main_->Tree().SelectedPath(); },
        std::to_string(root) + "/Materials/" + group.name);
    report_.CheckBecomes(
        "rows of " + group.name + " in main node " + std::to_string(root + 1),
        [this] { return main_->List().ReadRows(); }, group.rows);
}

void MainJob::ChooseGroupAndColor() {
    CheckGroup(0, GroupNamed(library_, kGroup));
    main_->List().ClickRow(kColor);
    const Row row = main_->List().ReadRow(main_->List().FindRow(kColor));
    report_.CheckBecomes(
        "selected colors", [this] { return main_->List().SelectedNames(); },
        std::vector<std::string>{kColor});
    report_.CheckBecomes(
        "values of the editor", [this] { return main_->ValueTexts(); },
        Row(row.begin() + 1, row.end()));
    report_.CheckBecomes(
        "sliders", [this] { return main_->SliderPositions(); }, Row(row.begin() + 1, row.end()));
    report_.CheckBecomes(
        "name in the editor", [this] { return main_->ColorName(); }, std::string(kColor));
    report_.CheckBecomes(
        "small swatch", [this] { return main_->SwatchCaption(); },
        std::string("Gold (R:255 G:206 B:77)"));
}

void MainJob::SaveLibrary() {
    const std::string before = ReadLibraryFile();
    main_->ChooseFromMenu("mnuFile", "mnuFileSave");
    report_.CheckBecomes(
        "status bar", [this] { return main_->InfoText(); }, std::string("Okay materials.tnt"));
    const std::string after = ReadLibraryFile();
    report_.Check(after != before, "the file has changed");
    const std::vector<LibraryGroup> saved = ParseLibrary(after);
    report_.CheckEqual("first line", after.substr(0, after.find('\r')),
                       std::string("\"D#Materials=0D:34\""));
    report_.CheckEqual("saved groups", GroupNames(saved), GroupNames(library_));
    for (std::size_t i = 0; i < saved.size(); ++i)
        report_.CheckEqual("saved rows of " + saved[i].name, saved[i].rows, library_.at(i).rows);
    const std::optional<std::string> backup = Win32Files().ReadWhole(libraryPath_ + ".bak");
    report_.Check(backup && Win32AnsiCodePage(1252).Decode(*backup) == before,
                  "the backup holds what the file held before");
}

void MainJob::ReopenLibrary() {
    OpenFromMenu();
    report_.CheckEqual("main nodes", main_->Tree().Roots(), {"Materials", "Materials"});
    report_.CheckEqual("groups of the second", main_->Tree().Children(1), GroupNames(library_));
    for (const std::size_t root : {std::size_t{0}, std::size_t{1}})
        for (const LibraryGroup& group : library_)
            CheckGroup(root, group);
}
