#include "tests/e2e/MainJob.h"

#include "platform/Utf16.h"

#include <array>
#include <cstdio>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

constexpr int kMargin = 10; // between the two windows and around them, pixels

// "03-show-the-large-editor.png".
std::string PictureName(int step, const std::string& name) {
    std::array<char, 8> number{};
    std::snprintf(number.data(), number.size(), "%02d-", step);
    std::string file = number.data();
    for (const char character : name)
        file += character == ' ' ? '-' : character;
    return file + ".png";
}

fs::path PathOf(const std::string& utf8) {
    return ToUtf16(utf8);
}

} // namespace

MainJob::MainJob(std::string programFolder, std::string pictureFolder)
    : programFolder_(std::move(programFolder)), pictureFolder_(std::move(pictureFolder)),
      libraryPath_(pictureFolder_ + "\\files\\materials.tnt"),
      logPath_(pictureFolder_ + "\\files\\calls.log"),
      report_([this](int step, const std::string& name) { SavePicture(step, name); }),
      log_(logPath_) {}

int MainJob::Run() {
    report_.Step("start both programs", [this] { StartPrograms(); });
    if (main_ != nullptr && standIn_ != nullptr) {
        report_.Step("open the sample library", [this] { OpenLibrary(); });
        report_.Step("choose a group and a color", [this] { ChooseGroupAndColor(); });
        report_.Step("show the large editor", [this] { ShowLargeEditor(); });
        report_.Step("edit the values", [this] { EditValues(); });
        report_.Step("update the color", [this] { UpdateColor(); });
        report_.Step("get the color of a face", [this] { GetColorOfFace(); });
        report_.Step("make a new color from the face", [this] { MakeColorFromFace(); });
        report_.Step("set the color on two faces", [this] { SetColorOnTwoFaces(); });
        report_.Step("set the color on a component", [this] { SetColorOnComponent(); });
        report_.Step("save the library", [this] { SaveLibrary(); });
        report_.Step("open the library again", [this] { ReopenLibrary(); });
        report_.Step("end both programs", [this] { EndPrograms(); });
    }
    return report_.Finish();
}

void MainJob::StartPrograms() {
    fs::create_directories(PathOf(pictureFolder_) / "files");
    for (const std::string& old : {libraryPath_, libraryPath_ + ".bak", logPath_})
        fs::remove(PathOf(old));
    fs::copy_file(PathOf(programFolder_) / "samples" / "materials.tnt", PathOf(libraryPath_));
    library_ = ParseLibrary(ReadLibraryFile());

    standInProgram_ = std::make_unique<RunningProgram>(
        "\"" + programFolder_ + "\\swx_standin.exe\" --log \"" + logPath_ + "\"");
    mainProgram_ = std::make_unique<RunningProgram>("\"" + programFolder_ + "\\tnt4swx.exe\"");
    const RemoteWindow standInWindow = RemoteWindow::WaitFor(L"frmStandIn", standInProgram_->Id());
    const RemoteWindow mainWindow = RemoteWindow::WaitFor(L"frmMain", mainProgram_->Id());
    ArrangeWindows(mainWindow, standInWindow);
    standIn_ = std::make_unique<RemoteStandIn>(standInWindow);
    main_ = std::make_unique<RemoteMain>(mainWindow, programFolder_);

    report_.CheckEqual("title", mainWindow.Title(), std::string("TNT4SWX"));
    report_.CheckEqual("columns of the list", main_->List().ColumnCount(), 10);
    report_.CheckEqual("main nodes", main_->Tree().Roots(), std::vector<std::string>());
    report_.CheckEqual("values of the editor", main_->ValueTexts(),
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
    main_->Window().Close();
    report_.CheckEqual("exit code of the program", mainProgram_->WaitForExitCode().value_or(999U),
                       0U);
    standIn_->Window().Close();
    report_.CheckEqual("exit code of the stand-in",
                       standInProgram_->WaitForExitCode().value_or(999U), 0U);
}

void MainJob::SavePicture(int step, const std::string& name) {
    const std::string file = PictureName(step, name);
    if (!screenshot_.Save(pictureFolder_ + "\\" + file))
        report_.Check(false, "picture " + file);
}
