#pragma once

#include "tests/e2e/CallLog.h"
#include "tests/e2e/Job.h"
#include "tests/e2e/LibraryRows.h"
#include "tests/e2e/StandInReader.h"

#include <string>

// The main job of the program, worked as a person does: open a library, edit a color, take a color
// from a face, give colors to faces and to a component, save, and open again.
class MainJob : public Job {
public:
    // As of Job.
    MainJob(std::string programFolder, std::string pictureFolder);

private:
    void Work() override;

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
    void SeeWhichColorIsSeen();
    void ClearSeenColor();
    void ReadLevelsOfAFace();
    void SaveLibrary();
    void ReopenLibrary();
    void EndPrograms();

    static void ArrangeWindows(const RemoteWindow& main, const RemoteWindow& standIn);
    void CheckGroup(std::size_t root, const LibraryGroup& group);
    void CheckLevels(const std::vector<Row>& levelsAndStates);
    void CheckValuesSent(const std::vector<std::string>& puts);
    [[nodiscard]] std::string ReadLibraryFile() const;
    [[nodiscard]] std::vector<double> ValuesAsSent() const;

    std::string libraryPath_;
    std::string logPath_;
    CallLog log_;
    RemoteWindow levels_;
    StandInReader reader_;
    std::vector<LibraryGroup> library_; // what the program must hold
};
