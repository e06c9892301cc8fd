#pragma once

#include "tests/e2e/CallLog.h"
#include "tests/e2e/JobReport.h"
#include "tests/e2e/LibraryRows.h"
#include "tests/e2e/RemoteMain.h"
#include "tests/e2e/RemoteStandIn.h"
#include "tests/e2e/RunningProgram.h"
#include "tests/e2e/Screenshot.h"
#include "tests/e2e/StandInReader.h"

#include <memory>
#include <string>

// The main job of the program, worked as a person does: open a library, edit a color, take a color
// from a face, give colors to faces and to a component, save, and open again.
class MainJob {
public:
    // programFolder: where the two programs are; pictureFolder: where a picture of the screen is
    // saved after each step.  UTF-8, without a backslash at the end.
    MainJob(std::string programFolder, std::string pictureFolder);

    // The process's exit code.
    int Run();

private:
    using Row = RemoteList::Row;

    static constexpr const char* kGroup = "Metals"; // what the job works on in the sample library
    static constexpr const char* kColor = "Gold";

    void StartPrograms();
    void OpenLibrary();
    void ChooseGroupAndColor();
    void ShowLargeEditor();
    void EditValues();
    void UpdateColor();
    void GetColorOfFace();
    void MakeColorFromFace();
    void SetColorOnTwoFaces();
    void SetColorOnComponent();
    void SaveLibrary();
    void ReopenLibrary();
    void EndPrograms();

    static void ArrangeWindows(const RemoteWindow& main, const RemoteWindow& standIn);
    void OpenFromMenu();
    void CheckGroup(std::size_t root, const LibraryGroup& group);
    void CheckValuesSent(const std::vector<std::string>& puts);
    void SavePicture(int step, const std::string& name);
    [[nodiscard]] std::string ReadLibraryFile() const;
    [[nodiscard]] std::vector<double> ValuesAsSent() const;

    std::string programFolder_;
    std::string pictureFolder_;
    std::string libraryPath_;
    std::string logPath_;
    Screenshot screenshot_;
    JobReport report_;
    CallLog log_;
    StandInReader reader_;
    std::unique_ptr<RunningProgram> standInProgram_;
    std::unique_ptr<RunningProgram> mainProgram_;
    std::unique_ptr<RemoteStandIn> standIn_;
    std::unique_ptr<RemoteMain> main_;
    std::vector<LibraryGroup> library_; // what the program must hold
};
