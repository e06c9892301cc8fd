#pragma once

#include "common/Settings.h"
#include "mainwindow/ColorEditor.h"
#include "mainwindow/LevelTexts.h"
#include "mainwindow/LevelsView.h"
#include "mainwindow/MainActivity.h"
#include "mainwindow/OperationReport.h"
#include "mainwindow/PlaceBesideMain.h"
#include "solidworks/modSldTools.h"
#include "support/language/clsMultiLanguage.h"
#include "support/windows/OnDemand.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

// Which color is seen in SolidWorks: a window beside the main one shows the levels of what was
// selected there when they were read last, and can take a level's color into the editor or off the
// level.  Whatever it does runs as a command of the main window, as if chosen from its menu.
class LevelsCommands : public LevelsEvents {
public:
    struct Parts {
        OnDemand<LevelsView>& window;
        modSldTools& tools;
        ColorEditor& editor;
        const OperationReport& report;
        const MainActivity& activity;
        clsMultiLanguage& language;
        const Settings& settings;
        const modRegistry& registry;
        const FormWindow& mainWindow;
        std::function<void(int command)> runCommand; // of the main window
    };

    explicit LevelsCommands(const Parts& parts);

    // Reads the levels and shows the window.
    void mnuSWXColorLevels_Click();
    // Of the level that the user has chosen in the window: its color into the editor, or off it.
    void TakeChosen();
    void ClearChosen();

    // The window, where there is one, speaks the language that is chosen now.
    void FollowLanguage();
    // The place of a window that is still open is kept.
    void ProgramEnding() const { place_.ProgramEnding(); }

    void TakeClicked(int row) override;
    void ClearClicked(int row) override;
    void ReadClicked() override;
    void LevelsClosing() override { place_.Closing(); }

private:
    using Operation = std::function<std::string(LevelColors& colors)>;

    [[nodiscard]] std::string Run(const Operation& operation);
    void Open();
    void ShowLevels();
    [[nodiscard]] std::optional<std::size_t> RowToSelect() const;
    void RunOn(int row, int command);

    Parts parts_;
    LevelTexts texts_;
    PlaceBesideMain place_;
    LevelColors colors_;                   // as they are shown
    std::optional<LevelColor> chosen_;     // while its command runs
    std::optional<std::int32_t> language_; // of the window's texts
};
