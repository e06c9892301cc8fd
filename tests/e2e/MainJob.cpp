#include "tests/e2e/MainJob.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace {

constexpr int kMargin = 10; // between the two windows and around them, pixels

} // namespace

MainJob::MainJob(std::string programFolder, std::string pictureFolder)
    : Job(std::move(programFolder), std::move(pictureFolder)), libraryPath_(File("materials.tnt")),
      logPath_(File("calls.log")), log_(logPath_) {}

void MainJob::Work() {
    Report().Step("start both programs", [this] { StartPrograms(); });
    if (IsMainShown() && IsStandInShown()) {
        Report().Step("open the sample library", [this] { OpenLibrary(); });
        Report().Step("choose a group and a color", [this] { ChooseGroupAndColor(); });
        Report().Step("show the large editor", [this] { ShowLargeEditor(); });
        Report().Step("edit the values", [this] { EditValues(); });
        Report().Step("update the color", [this] { UpdateColor(); });
        Report().Step("get the color of a face", [this] { GetColorOfFace(); });
        Report().Step("make a new color from the face", [this] { MakeColorFromFace(); });
        Report().Step("set the color on two faces", [this] { SetColorOnTwoFaces(); });
        Report().Step("set the color on a component", [this] { SetColorOnComponent(); });
        Report().Step("see which color is seen", [this] { SeeWhichColorIsSeen(); });
        Report().Step("clear the color that is seen", [this] { ClearSeenColor(); });
        Report().Step("read the levels of a face", [this] { ReadLevelsOfAFace(); });
        Report().Step("save the library", [this] { SaveLibrary(); });
        Report().Step("open the library again", [this] { ReopenLibrary(); });
        Report().Step("end both programs", [this] { EndPrograms(); });
    }
}

void MainJob::StartPrograms() {
    fs::remove(PathOf(logPath_));
    CopySample("materials.tnt");
    library_ = ParseLibrary(ReadLibraryFile());

    StartStandIn("--log \"" + logPath_ + "\"");
    StartMain();
    ArrangeWindows(Main().Window(), StandIn().Window());

    Report().CheckEqual("title", Main().Window().Title(), std::string("TNT4SWX"));
    Report().CheckEqual("columns of the list", Main().List().ColumnCount(), 10);
    Report().CheckEqual("main nodes", Main().Tree().Roots(), std::vector<std::string>());
    Report().CheckEqual("values of the editor", Main().ValueTexts(),
                        {"255", "255", "255", "100", "100", "100", "30", "0", "0"});
}

// One above the other: the main window stays on top of everything and would cover what is clicked.
void MainJob::ArrangeWindows(const RemoteWindow& main, const RemoteWindow& standIn) {
    const int width = GetSystemMetrics(SM_CXSCREEN) - 2 * kMargin;
    const int height = (GetSystemMetrics(SM_CYSCREEN) - 3 * kMargin) / 2;
    main.Place(kMargin, kMargin, width, height);
    standIn.Place(kMargin, height + 2 * kMargin, width, height);
}

void MainJob::EndPrograms() {
    EndMain();
    EndStandIn();
}
