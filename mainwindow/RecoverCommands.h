#pragma once

#include "common/Settings.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "library/RecoveryKeeper.h"
#include "mainwindow/BarsPane.h"
#include "mainwindow/RecoverView.h"
#include "mainwindow/ShownLibraryFiles.h"
#include "support/language/clsMultiLanguage.h"
#include "support/settings/CFormPos.h"
#include "support/windows/OnDemand.h"

#include <string>
#include <vector>

// What was kept of libraries that were not saved: the user sees it, opens it, deletes it.
class RecoverCommands : public RecoverEvents {
public:
    struct Parts {
        OnDemand<RecoverView>& window;
        RecoveryKeeper& keeper;
        RecoveryFolder& folder;
        ColorLibrary& library;
        LibraryFiles& libraryFiles;
        ShownLibraryFiles& files;
        BarsPane& bars;
        Prompts& prompts;
        clsMultiLanguage& language;
        const Settings& settings;
        const modRegistry& registry;
    };

    explicit RecoverCommands(const Parts& parts);
    ~RecoverCommands() override;
    RecoverCommands(const RecoverCommands&) = delete;
    RecoverCommands& operator=(const RecoverCommands&) = delete;

    void mnuFileRecover_Click();

    // The status panel says when the program has crashed and when there is something to recover.
    // crashReport: path of what a crash has left; empty: there was none.
    void TellAtStart(const std::string& crashReport);

    void DeleteClicked(int row) override;
    void EmptyClicked() override;
    void RecoverUnloading() override;

private:
    [[nodiscard]] std::string Text(std::int32_t number, const char* builtIn) const;
    void ShowEntries();
    [[nodiscard]] RecoverRow RowOf(const RecoveryEntry& entry) const;
    void Open(const std::vector<RecoveryEntry>& entries);
    void Open(const RecoveryEntry& entry);
    void TakeOver(const RecoveryEntry& entry, ReadResult result);
    void SetPlace(const std::string& mainKey, const std::string& filePath);
    [[nodiscard]] bool IsConfirmed(const std::string& what);

    Parts parts_;
    CFormPos position_;
    std::vector<RecoveryEntry> entries_; // in the order of the rows
};
