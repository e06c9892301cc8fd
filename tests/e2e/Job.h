#pragma once

#include "tests/e2e/JobReport.h"
#include "tests/e2e/RemoteMain.h"
#include "tests/e2e/RemoteStandIn.h"
#include "tests/e2e/RunningProgram.h"
#include "tests/e2e/Screenshot.h"

#include <filesystem>
#include <memory>
#include <string>

// A job that is worked with the shipped programs as a person does, with real mouse and keyboard; it
// checks after each step what it sees and saves a picture of the screen.
class Job {
public:
    // programFolder: where the two programs are; pictureFolder: where the pictures go, and below
    // "files" what the job writes.  UTF-8, without a backslash at the end.
    Job(std::string programFolder, std::string pictureFolder);
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;
    virtual ~Job() = default;

    // Works the job from start to end; the process's exit code.
    int Run();

protected:
    [[nodiscard]] const std::string& ProgramFolder() const noexcept { return programFolder_; }
    // The full name of a file below "files".
    [[nodiscard]] std::string File(const std::string& name) const;
    [[nodiscard]] JobReport& Report() noexcept { return report_; }

    // The steps, by Report().Step().
    virtual void Work() = 0;

    // A program that runs already stays as it is until its End.
    void StartMain();
    void StartStandIn(const std::string& arguments = {});
    [[nodiscard]] bool IsMainShown() const noexcept { return main_ != nullptr; }
    [[nodiscard]] bool IsStandInShown() const noexcept { return standIn_ != nullptr; }
    [[nodiscard]] const RemoteMain& Main() const noexcept { return *main_; }
    [[nodiscard]] const RemoteStandIn& StandIn() const noexcept { return *standIn_; }

    // Copies a sample library to File(name).
    void CopySample(const std::string& name) const;
    // Opens a library by the menu and does not want it at every start.
    void OpenFromMenu(const std::string& path);

    // Shows the bars that a first start hides.
    void ShowHiddenBars() const;

    // Closes the window as its close box does and checks the exit code.
    void EndMain();
    // Quits by the menu and checks the exit code.
    void QuitMain();
    void EndStandIn();

    [[nodiscard]] static std::filesystem::path PathOf(const std::string& utf8);

private:
    void AwaitEndOfMain();
    [[nodiscard]] bool IsPainted() const;
    void SavePicture(int step, const std::string& name);

    std::string programFolder_;
    std::string pictureFolder_;
    Screenshot screenshot_;
    JobReport report_;
    std::unique_ptr<RunningProgram> standInProgram_;
    std::unique_ptr<RunningProgram> mainProgram_;
    std::unique_ptr<RemoteStandIn> standIn_;
    std::unique_ptr<RemoteMain> main_;
};
