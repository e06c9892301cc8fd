#pragma once

#include "tests/e2e/Job.h"
#include "tests/e2e/RemoteDialogs.h"

#include <string>
#include <vector>

// The file menu, worked as a person does with the real file dialogs: open, save, save as, close,
// new, load a library at every start and no longer, quit.
class FilesJob : public Job {
public:
    using Job::Job;

private:
    void Work() override;

    void Start();
    void CancelOpen();
    void OpenTwoLibraries();
    void OpenWhatIsNoLibrary();
    void SaveRetargets();
    void SaveAsOverAnExistingFile();
    void RefusedNames();
    void NewLibraryIsSavedAs();
    void PalettesAreImportedAndExported();
    void CloseGroupAndLibraries();
    void LoadAtEveryStart();
    void StartWithTheLibrary();
    void StartWithoutIt();

    void WriteFile(const std::string& name, const std::string& bytes) const;
    // What the file holds; "(none)" when it is not there.
    [[nodiscard]] std::string ReadFile(const std::string& name) const;

    void ChooseFile(const std::string& entry) const;
    // Opens a file by the menu; checks status bar and question and answers it.
    void Open(const std::string& name, int answer);
    void CheckFileDialog(const RemoteDialogs::FileDialog& dialog, const std::string& folder,
                         const std::string& fileName);
    void CheckMessage(const RemoteDialogs::Message& message, const std::string& title,
                      const std::string& text);
    void CheckStatus(const std::string& text);
    void CheckRoots(const std::vector<std::string>& roots);
    void Select(std::size_t root, const std::string& group, const std::string& path);
    void SaveSettings() const;
    [[nodiscard]] std::string Folder() const;
};
