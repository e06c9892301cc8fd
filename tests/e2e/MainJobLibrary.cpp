// The steps of the main job that work with libraries and files.

#include "tests/e2e/MainJob.h"

#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32Files.h"

#include <stdexcept>

std::string MainJob::ReadLibraryFile() const {
    const std::optional<std::string> bytes = Win32Files().ReadWhole(libraryPath_);
    if (!bytes)
        throw std::runtime_error("The library cannot be read: " + libraryPath_);
    return Win32AnsiCodePage(1252).Decode(*bytes);
}

void MainJob::OpenLibrary() {
    OpenFromMenu(libraryPath_);
    Report().CheckEqual("main nodes", Main().Tree().Roots(), {"Materials"});
    Report().CheckEqual("groups", Main().Tree().Children(0), GroupNames(library_));
}

void MainJob::CheckGroup(std::size_t root, const LibraryGroup& group) {
    Main().Tree().ClickChild(root, group.name);
    Report().CheckBecomes(
        "selected node", [this] { return Main().Tree().SelectedPath(); },
        std::to_string(root) + "/Materials/" + group.name);
    Report().CheckBecomes(
        "rows of " + group.name + " in main node " + std::to_string(root + 1),
        [this] { return Main().List().ReadRows(); }, group.rows);
}

void MainJob::ChooseGroupAndColor() {
    CheckGroup(0, GroupNamed(library_, kGroup));
    Main().List().ClickRow(kColor);
    const Row row = Main().List().ReadRow(Main().List().FindRow(kColor));
    Report().CheckBecomes(
        "selected colors", [this] { return Main().List().SelectedNames(); },
        std::vector<std::string>{kColor});
    Report().CheckBecomes(
        "values of the editor", [this] { return Main().ValueTexts(); },
        Row(row.begin() + 1, row.end()));
    Report().CheckBecomes(
        "sliders", [this] { return Main().SliderPositions(); }, Row(row.begin() + 1, row.end()));
    Report().CheckBecomes(
        "name in the editor", [this] { return Main().ColorName(); }, std::string(kColor));
    Report().CheckBecomes(
        "small swatch", [this] { return Main().SwatchCaption(); },
        std::string("Gold (R:255 G:206 B:77)"));
}

void MainJob::SaveLibrary() {
    const std::string before = ReadLibraryFile();
    Main().ChooseFromMenu("mnuFile", "mnuFileSave");
    Report().CheckBecomes(
        "status bar", [this] { return Main().InfoText(); }, std::string("Okay materials.tnt"));
    const std::string after = ReadLibraryFile();
    Report().Check(after != before, "the file has changed");
    const std::vector<LibraryGroup> saved = ParseLibrary(after);
    Report().CheckEqual("first line", after.substr(0, after.find('\r')),
                        std::string("\"D#Materials=0D:34\""));
    Report().CheckEqual("saved groups", GroupNames(saved), GroupNames(library_));
    for (std::size_t i = 0; i < saved.size(); ++i)
        Report().CheckEqual("saved rows of " + saved[i].name, saved[i].rows, library_.at(i).rows);
    const std::optional<std::string> backup = Win32Files().ReadWhole(libraryPath_ + ".bak");
    Report().Check(backup && Win32AnsiCodePage(1252).Decode(*backup) == before,
                   "the backup holds what the file held before");
}

void MainJob::ReopenLibrary() {
    OpenFromMenu(libraryPath_);
    Report().CheckEqual("main nodes", Main().Tree().Roots(), {"Materials", "Materials"});
    Report().CheckEqual("groups of the second", Main().Tree().Children(1), GroupNames(library_));
    for (const std::size_t root : {std::size_t{0}, std::size_t{1}})
        for (const LibraryGroup& group : library_)
            CheckGroup(root, group);
}
