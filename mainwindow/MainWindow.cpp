#include "mainwindow/MainWindow.h"

#include "common/FirstError.h"
#include "common/InfoTextNumber.h"
#include "common/ProgramNames.h"
#include "common/ValueRestorer.h"
#include "mainwindow/HistoryStep.h"
#include "mainwindow/WaitingShown.h"
#include "resources/controls.h"

#include <optional>

MainWindow::MainWindow(const Parts& parts)
    : parts_(parts), position_(parts.registry),
      busy_(parts.view.bars, parts.texts, parts.events, parts.panes.activity.endRequested) {
    parts_.commands.library.Tree().Observe(&parts_.view.tree);
    parts_.commands.view.ShowDesignedState();
}

MainWindow::~MainWindow() {
    parts_.commands.library.Tree().Observe(nullptr);
}

void MainWindow::SetFormDefaults() {
    PlaceWindow();
    parts_.commands.options.ApplyLanguage();
    if (parts_.settings.alwaysOnTop)
        parts_.commands.options.mnuOptionsAlwaysOnTop_Click();
    parts_.commands.options.ShowConfirmDelAndCreateBackups();
    parts_.commands.view.ApplySettings();
    parts_.panes.list.AddColumns();
    parts_.panes.editor.ShowInitialColor();
    parts_.commands.library.Colors().Reset();
    parts_.commands.view.SetListView(ListViewMode::Details);
    parts_.commands.history.ShowEntries();
    parts_.commands.file.Autoload();
    parts_.view.list.HintChanged();
}

void MainWindow::PlaceWindow() {
    position_.SetForm(parts_.form);
    position_.SetRootKey(RegistryRoot::CurrentUser);
    position_.SetRegistryPath(ProgramNames::RegistryPath);
    position_.SetSubKey(ProgramNames::FormPositionsKey);
    if (!position_.RestoreForm(true))
        position_.CenterForm();
}

void MainWindow::RunCommand(int command) {
    const MenuRow* row = FindCommand(command);
    if (row == nullptr)
        return;
    parts_.drag.DragCancelled();
    if (!Activity().operationRuns) {
        // What stands in the box is meant: a menu, a button or a shortcut leaves the focus there.
        parts_.panes.library.FinishLabelEdit();
        Run(*row);
        return;
    }
    parts_.commands.view.ShowPressedView();
    if (command == IDM_mnuQuit)
        EndAfterOperation();
}

void MainWindow::Run(const MenuRow& row) {
    if (row.kind != CommandKind::Plain)
        ForgetStatus();
    FirstError error;
    error.Watch([&] {
        if (row.kind == CommandKind::Operation)
            RunOperation(row);
        else
            RunStep(row);
    });
    ShowWhatFollows();
    error.Rethrow();
}

// Texts that depend on the libraries, and on the language, which may be another one.
void MainWindow::ShowWhatFollows() {
    parts_.commands.history.ShowEntries();
    parts_.view.list.HintChanged();
    parts_.commands.levels.FollowLanguage();
}

// An empty list offers what can be recovered as soon as it is kept.
void MainWindow::SecondPassed() {
    if (parts_.keeper.Look())
        parts_.view.list.HintChanged();
}

void MainWindow::RunStep(const MenuRow& row) {
    std::optional<HistoryStep> step;
    if (row.isStep)
        step.emplace(parts_.commands.library.History(), parts_.panes.library,
                     StepName{.command = row.command});
    row.run(parts_.commands);
}

void MainWindow::RunOperation(const MenuRow& row) {
    try {
        RunWatched(row);
    } catch (const OperationStopped&) {
        ShowStatus(parts_.texts.GetInfoTextOr(InfoTextNumber::SolidWorksStopped, "Stopped."));
    } catch (...) {
        // A user who has asked for the end meanwhile is not told what failed.
        if (!Activity().endRequested)
            throw;
    }
    if (Activity().endRequested)
        parts_.commands.quit();
}

// Calls to SolidWorks let the window handle events; nothing else is commanded until they are over.
void MainWindow::RunWatched(const MenuRow& row) {
    const ValueRestorer running(Activity().operationRuns, true);
    const WaitingShown waiting(parts_.view.frame);
    const WatchedCalls watched(parts_.retry, busy_);
    RunStep(row);
}

// So that the status panel never tells of an earlier command.
void MainWindow::ForgetStatus() {
    ShowStatus({});
}

void MainWindow::EscapePressed() {
    if (Activity().operationRuns)
        parts_.stopFlag = true;
}

void MainWindow::EndAfterOperation() {
    parts_.stopFlag = true;
    Activity().endRequested = true;
}

void MainWindow::FilesDropped(const std::vector<std::string>& paths) {
    if (Activity().operationRuns)
        return;
    parts_.panes.library.FinishLabelEdit();
    ForgetStatus();
    FirstError error;
    error.Watch([&] { parts_.commands.file.OpenDropped(paths); });
    error.Watch([&] {
        const HistoryStep step(parts_.commands.library.History(), parts_.panes.library,
                               StepName{.command = IDM_mnuFileImport});
        parts_.commands.palettes.ImportDropped(paths);
    });
    ShowWhatFollows();
    error.Rethrow();
}

void MainWindow::SampleChosen(const std::string& path) {
    if (Activity().operationRuns)
        return;
    ForgetStatus();
    parts_.commands.file.OpenSample(path);
    ShowWhatFollows();
}

// The position is stored only here: Quit in the file menu does not pass, on purpose.
void MainWindow::WindowClosing() {
    position_.SaveForm();
    RunCommand(IDM_mnuQuit);
}

// The system may end the process as soon as this returns: nothing waits for an operation.
void MainWindow::SessionEnding() {
    position_.SaveForm();
    if (Activity().operationRuns)
        EndAfterOperation();
    parts_.commands.quit();
}

void MainWindow::ShowStatus(const std::string& text) {
    parts_.view.bars.SetInfoPanelText(text);
}
