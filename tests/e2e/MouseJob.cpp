#include "tests/e2e/MouseJob.h"

#include "platform/DpiScale.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32Files.h"
#include "resources/controls.h"
#include "tests/e2e/LibraryRows.h"
#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteDialogs.h"

#include <algorithm>
#include <stdexcept>

MouseJob::MouseJob(std::string programFolder, std::string pictureFolder)
    : Job(std::move(programFolder), std::move(pictureFolder)), libraryPath_(File("materials.tnt")) {
}

void MouseJob::Work() {
    Report().Step("start and open a library", [this] { StartAndOpen(); });
    if (IsMainShown()) {
        WorkDrags();
        WorkBars();
        WorkSizes();
        WorkInGerman();
        Report().Step("end the program", [this] { EndMain(); });
    }
}

void MouseJob::WorkDrags() {
    Report().Step("carry a color over another group", [this] { CarryOverAGroup(); });
    Report().Step("drop it there", [this] { DropOnTheGroup(); });
    Report().Step("copy a color with Ctrl", [this] { CopyWithCtrl(); });
    Report().Step("drop a color on the library", [this] { DropOnTheLibrary(); });
    Report().Step("close the note", [this] { CloseTheNote(); });
    Report().Step("drop a color below the nodes", [this] { DropBelowTheNodes(); });
    Report().Step("give a drag up with Escape", [this] { GiveUpWithEscape(); });
    Report().Step("rest on a closed library", [this] { RestOnAClosedLibrary(); });
    Report().Step("carry a color to the edge of the tree", [this] { CarryToTheTreesEdge(); });
}

float MouseJob::Twips(int pixels) {
    return DpiScale(DpiOfScreen()).ToTwips(pixels);
}

void MouseJob::PlaceMain() {
    Main().Window().Place(kMargin, kMargin, kWidth, kHeight);
}

void MouseJob::StartAndOpen() {
    namespace fs = std::filesystem;
    fs::remove(PathOf(libraryPath_));
    fs::copy_file(PathOf(ProgramFolder()) / "samples" / "materials.tnt", PathOf(libraryPath_));
    const std::string bytes = Win32Files().ReadWhole(libraryPath_).value();
    for (const LibraryGroup& group : ParseLibrary(Win32AnsiCodePage(1252).Decode(bytes)))
        for (const RemoteList::Row& row : group.rows)
            groups_[group.name].push_back(row.front());

    StartMain();
    PlaceMain();
    Open(libraryPath_);
    CheckGroup("Metals");
}

void MouseJob::Open(const std::string& path) {
    Main().ChooseFromMenu("mnuFile", "mnuFileOpen");
    RemoteDialogs::EnterFileName(Main().Window(), path);
    RemoteDialogs::AnswerMessageBox(Main().Window(), IDNO); // not at every start
}

void MouseJob::ClickGroup(const std::string& group) {
    const std::string path = "0/Materials/" + group;
    const auto isSelected = [&] { return Main().Tree().SelectedPath() == path; };
    if (!isSelected())
        static_cast<void>(ActUntil([&] { Main().Tree().ClickChild(0, group); }, isSelected));
    Report().CheckEqual("selected node", Main().Tree().SelectedPath(), path);
}

void MouseJob::CheckGroup(const std::string& group) {
    ClickGroup(group);
    Report().CheckBecomes(
        "colors of " + group, [this] { return Main().List().Names(); }, groups_.at(group));
}

// The drag is there as soon as the list holds the mouse.
void MouseJob::PickUp(const std::string& group, const std::string& color) {
    CheckGroup(group);
    pointer_ = Main().List().PointOfRow(color);
    RealInput::MoveTo(pointer_);
    RealInput::PressLeft();
    CarryTo({pointer_.x + 40, pointer_.y});
    Report().Check(PollUntil([this] { return Main().Window().HoldsMouse(); }),
                   color + " is dragged");
}

void MouseJob::CarryTo(POINT to) {
    RealInput::Glide(pointer_, to);
    pointer_ = to;
}

void MouseJob::Drop() {
    RealInput::ReleaseLeft();
    CheckDropped();
}

void MouseJob::CheckDropped() {
    Report().Check(PollUntil([this] { return !Main().Window().HoldsMouse(); }), "the drag is over");
    Report().CheckEqual("marked node", Main().Tree().DropTarget(), std::string());
}

void MouseJob::CarryToGroup(const std::string& group) {
    CarryTo(Main().Tree().PointOfChild(0, group));
    Report().CheckBecomes(
        "marked node", [this] { return Main().Tree().DropTarget(); }, group);
}

void MouseJob::CarryOverAGroup() {
    PickUp("Metals", "Gold");
    CarryToGroup("Gems");
    Report().CheckEqual("colors of the list meanwhile", Main().List().Names(),
                        groups_.at("Metals"));
}

void MouseJob::DropOnTheGroup() {
    Drop();
    std::erase(groups_["Metals"], "Gold");
    groups_["Gems"].emplace_back("Gold");
    Report().CheckBecomes(
        "selected node", [this] { return Main().Tree().SelectedPath(); },
        std::string("0/Materials/Gems"));
    Report().CheckBecomes(
        "selected color", [this] { return Main().List().SelectedNames(); }, Names{"Gold"});
    Report().CheckBecomes(
        "small swatch", [this] { return Main().SwatchCaption(); },
        std::string("Gold (R:255 G:206 B:77)"));
    CheckGroup("Metals");
    CheckGroup("Gems");
}

void MouseJob::CopyWithCtrl() {
    CheckGroup("Gems");
    RealInput::HoldKey(VK_CONTROL);
    PickUp("Gems", "Ruby");
    CarryToGroup("Rubber");
    RealInput::ReleaseLeftWithCtrl(); // the display may have taken the held key back meanwhile
    CheckDropped();
    RealInput::ReleaseKey(VK_CONTROL);
    groups_["Rubber"].emplace_back("Ruby");
    Report().CheckBecomes(
        "selected color", [this] { return Main().List().SelectedNames(); }, Names{"Ruby"});
    CheckGroup("Gems");
    CheckGroup("Rubber");
}

void MouseJob::DropOnTheLibrary() {
    PickUp("Gems", "Pearl");
    CarryTo(Main().Tree().PointOfRoot(0));
    Report().CheckBecomes(
        "marked node", [this] { return Main().Tree().DropTarget(); }, std::string());
    Drop();
    CheckNote("Color", "Colors can only be dropped onto a group.");
}

void MouseJob::CheckNote(const std::string& title, const std::string& text) {
    const RemoteDialogs::Message note = RemoteDialogs::ReadMessageBox(Main().Window());
    Report().CheckEqual("title of the note", note.title, title);
    Report().CheckEqual("note", note.text, text);
}

void MouseJob::CloseTheNote() {
    RemoteDialogs::AnswerMessageBox(Main().Window(), IDOK);
    CheckGroup("Gems");
}

void MouseJob::DropBelowTheNodes() {
    PickUp("Gems", "Pearl");
    CarryTo(Main().Tree().PointBelowTheNodes());
    Drop();
    Report().CheckEqual("selected node", Main().Tree().SelectedPath(),
                        std::string("0/Materials/Gems"));
    CheckGroup("Gems");
}

void MouseJob::GiveUpWithEscape() {
    PickUp("Gems", "Obsidian"); // a second press on the same row would be a double click
    CarryToGroup("Metals");
    RealInput::PressKey(VK_ESCAPE);
    Report().Check(PollUntil([this] { return !Main().Window().HoldsMouse(); }),
                   "Escape gives the drag up");
    RealInput::ReleaseLeft();
    CheckGroup("Metals");
    CheckGroup("Gems");
}

void MouseJob::RestOnAClosedLibrary() {
    PickUp("Gems", "Jade");
    Main().Tree().Collapse(0);
    CarryTo(Main().Tree().PointOfRoot(0));
    Report().Check(PollUntil([this] { return Main().Tree().IsExpanded(0); }),
                   "the library shows its groups");
    CarryToGroup("Plastics");
    Drop();
    std::erase(groups_["Gems"], "Jade");
    groups_["Plastics"].emplace_back("Jade");
    CheckGroup("Plastics");
}

void MouseJob::CarryToTheTreesEdge() {
    Open(ProgramFolder() + "\\samples\\web-colors.tnt");
    Main().Window().Place(kMargin, kMargin, kWidth, 240);
    PickUp("Plastics", "Jade");
    const RECT tree = Main().Control(IDC_tvColor).Bounds();
    const std::string first = Main().Tree().FirstVisible();
    CarryTo({tree.left + 60, tree.bottom - 8});
    Report().Check(PollUntil([&] { return Main().Tree().FirstVisible() != first; }),
                   "the tree scrolls down");
    CarryTo({tree.left + 60, tree.top + 8});
    Report().Check(PollUntil([&] { return Main().Tree().FirstVisible() == "Materials"; }),
                   "the tree scrolls up");
    RealInput::PressKey(VK_ESCAPE);
    RealInput::ReleaseLeft();
    PlaceMain();
    CheckGroup("Plastics");
}
