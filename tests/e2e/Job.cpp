#include "tests/e2e/Job.h"

#include "platform/Utf16.h"
#include "tests/e2e/RemoteDialogs.h"

#include <array>
#include <cstdio>

namespace {

// "03-show-the-large-editor.png".
std::string PictureName(int step, const std::string& name) {
    std::array<char, 8> number{};
    std::snprintf(number.data(), number.size(), "%02d-", step);
    std::string file = number.data();
    for (const char character : name)
        file += character == ' ' ? '-' : character;
    return file + ".png";
}

} // namespace

Job::Job(std::string programFolder, std::string pictureFolder)
    : programFolder_(std::move(programFolder)), pictureFolder_(std::move(pictureFolder)),
      report_([this](int step, const std::string& name) { SavePicture(step, name); }) {}

int Job::Run() {
    const std::filesystem::path files = PathOf(pictureFolder_) / "files";
    std::filesystem::remove_all(files); // of an earlier run
    std::filesystem::create_directories(files);
    Work();
    return report_.Finish();
}

std::string Job::File(const std::string& name) const {
    return pictureFolder_ + "\\files\\" + name;
}

void Job::StartMain() {
    mainProgram_ = std::make_unique<RunningProgram>("\"" + programFolder_ + "\\tnt4swx.exe\"");
    main_ = std::make_unique<RemoteMain>(RemoteWindow::WaitFor(L"frmMain", mainProgram_->Id()),
                                         programFolder_);
}

void Job::StartStandIn(const std::string& arguments) {
    standInProgram_ = std::make_unique<RunningProgram>("\"" + programFolder_ +
                                                       "\\swx_standin.exe\" " + arguments);
    standIn_ = std::make_unique<RemoteStandIn>(
        RemoteWindow::WaitFor(L"frmStandIn", standInProgram_->Id()));
}

void Job::CopySample(const std::string& name) const {
    const std::string path = File(name);
    for (const std::string& old : {path, path + ".bak"})
        std::filesystem::remove(PathOf(old));
    std::filesystem::copy_file(PathOf(programFolder_) / "samples" / name, PathOf(path));
}

void Job::OpenFromMenu(const std::string& path) {
    Main().ChooseFromMenu("mnuFile", "mnuFileOpen");
    RemoteDialogs::EnterFileName(Main().Window(), path);
    const RemoteDialogs::Message question = RemoteDialogs::AnswerMessageBox(Main().Window(), IDNO);
    report_.Note("question: " + question.title + " / " + question.text);
    report_.Check(question.text.ends_with("\n" + path), "the question names the file");
    report_.CheckBecomes(
        "status bar", [this] { return Main().InfoText(); },
        "Okay " + path.substr(path.rfind('\\') + 1));
}

void Job::ShowHiddenBars() const {
    for (const char* entry : {"mnuViewBarStandards", "mnuViewBarListview", "mnuViewStatusBar"})
        main_->ChooseFromMenu("mnuView", entry);
}

bool Job::IsPainted() const {
    return (!main_ || main_->Window().IsPainted()) && (!standIn_ || standIn_->Window().IsPainted());
}

void Job::EndMain() {
    main_->Window().Close();
    AwaitEndOfMain();
}

void Job::QuitMain() {
    main_->ChooseFromMenu("mnuFile", "mnuQuit");
    AwaitEndOfMain();
}

void Job::AwaitEndOfMain() {
    report_.CheckEqual("exit code of the program", mainProgram_->WaitForExitCode().value_or(999U),
                       0U);
    main_.reset();
    mainProgram_.reset();
}

void Job::EndStandIn() {
    standIn_->Window().Close();
    report_.CheckEqual("exit code of the stand-in",
                       standInProgram_->WaitForExitCode().value_or(999U), 0U);
    standIn_.reset();
    standInProgram_.reset();
}

std::filesystem::path Job::PathOf(const std::string& utf8) {
    return ToUtf16(utf8);
}

void Job::SavePicture(int step, const std::string& name) {
    static_cast<void>(PollUntil([this] { return IsPainted(); }));
    const std::string file = PictureName(step, name);
    if (!screenshot_.Save(pictureFolder_ + "\\" + file))
        report_.Check(false, "picture " + file);
}
