#pragma once

#include "common/Settings.h"
#include "mainwindow/BusyStatus.h"
#include "mainwindow/ColorDrag.h"
#include "mainwindow/CommandTable.h"
#include "mainwindow/MainCommands.h"
#include "mainwindow/MainPanes.h"
#include "mainwindow/MainView.h"
#include "support/settings/CFormPos.h"
#include "support/settings/modRegistry.h"

#include <string>
#include <vector>

// The main window as a whole: its set-up at start, its end, and the gate that every command passes.
class MainWindow : public MainFrameEvents {
public:
    struct Parts {
        MainView view;
        FormWindow& form;
        MainPanes& panes;
        ColorDrag& drag;
        MainCommands commands;
        RecoveryKeeper& keeper;
        const Settings& settings;
        const modRegistry& registry;
        InfoTexts& texts;
        BusyRetry& retry; // repeats the calls to SolidWorks
        EventPump& events;
        bool& stopFlag;
    };

    explicit MainWindow(const Parts& parts);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow() override;

    // Initialises the window before it is shown, autoload of the default library included.
    void SetFormDefaults();

    // While a SolidWorks operation runs, every command is refused silently; Quit stops a walk
    // first.  A drag that is under way is given up.
    void RunCommand(int command) override;
    // Stops an operation that runs, also before its progress window is shown.
    void EscapePressed() override;
    void FilesDropped(const std::vector<std::string>& paths) override;
    void SampleChosen(const std::string& path) override;
    void WindowClosing() override;
    void SessionEnding() override;
    void SecondPassed() override;

private:
    void Run(const MenuRow& row);
    void RunOperation(const MenuRow& row);
    void RunStep(const MenuRow& row);
    void RunWatched(const MenuRow& row);
    void ShowStatus(const std::string& text);
    void ForgetStatus();
    void ShowWhatFollows();
    void EndAfterOperation();
    void PlaceWindow();
    [[nodiscard]] MainActivity& Activity() noexcept { return parts_.panes.activity; }

    Parts parts_;
    CFormPos position_;
    BusyStatus busy_;
};
