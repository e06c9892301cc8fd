#pragma once

#include "common/Settings.h"
#include "common/ports/Clipboard.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "common/ports/TextCollation.h"
#include "library/ColorLibrary.h"
#include "library/FileCommands.h"
#include "library/LibraryFiles.h"
#include "mainwindow/BusyStatus.h"
#include "mainwindow/ColorDrag.h"
#include "mainwindow/ColorEditor.h"
#include "mainwindow/ColorList.h"
#include "mainwindow/EditingCommands.h"
#include "mainwindow/LayoutController.h"
#include "mainwindow/LibraryPanes.h"
#include "mainwindow/MainView.h"
#include "mainwindow/SolidWorksCommands.h"
#include "mainwindow/ViewCommands.h"
#include "solidworks/modSldTools.h"
#include "support/About.h"
#include "support/Banner.h"
#include "support/CFormPos.h"
#include "support/Options.h"
#include "support/TextViewer.h"
#include "support/modRegistry.h"

#include <functional>
#include <map>

// The main window's rules: joins library, editor, list, layout and SolidWorks commands, runs every
// command by its number and handles what the user did in frmMain.
class MainWindow : public MainViewEvents, public FileCommandsHost {
public:
    struct Parts {
        MainView& view;
        FormWindow& form;
        Settings& settings;
        ColorLibrary& library;
        LibraryFiles& libraryFiles;
        FileCommands& fileCommands;
        modSldTools& solidWorks;
        BusyRetry& retry; // repeats its calls
        EventPump& events;
        Options& options;
        About& about;
        TextViewer& textViewer;
        Banner& banner;
        const modRegistry& registry;
        Prompts& prompts;
        InfoTexts& texts;
        Clipboard& clipboard;
        const TextCollation& collation;
        bool& stopFlag;
        std::function<void()> quit; // ends the program
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

    void NodeClicked(const std::string& key) override;
    void NodeLabelEdited(const std::string& key, const std::string& text) override;
    void NodeEditRequested() override;
    std::string CellText(int row, int column) const override;
    int FindRow(const std::string& text, int start) const override;
    void RowClicked(int row) override;
    void RowEditRequested() override;
    bool MayEditNode() const override;
    bool MayEditRow() const override;
    void RowLabelEdited(int row, const std::string& text) override;
    void ColumnClicked(int column) override;
    void ListPressed() override;
    bool DragStarted(const HeldKeys& keys, const DragPoint& at) override;
    void DragMoved(const DragPoint& at) override;
    void DragTicked(const DragPoint& at) override;
    void DragDropped(const DragPoint& at) override;
    void DragCancelled() override;
    void ValueTextChanged(std::size_t index, const std::string& text) override;
    bool IsValueCharacter(char32_t character) const override;
    void ValueFocused(std::size_t index) override;
    void SliderMoved(std::size_t index, int position) override;
    void SwatchDoubleClicked() override;
    void Resized() override;
    void ScaleChanged() override;
    void Repainted() override;
    void SplitterPressed() override;
    void SplitterDragged(float x) override;
    void SplitterReleased() override;
    void BannerTicked() override;
    void BannerClicked() override;
    void FilesDropped(const std::vector<std::string>& paths) override;
    void WindowClosing() override;
    void SessionEnding() override;

    void ShowStatus(const std::string& text) override;
    void DeleteSelectedNode() override;

private:
    using Handler = std::function<void()>;
    void AddFileHandlers();
    // Of a command that shows how it went in the status panel: the panel is empty when it begins.
    void AddReportingHandler(int command, std::function<void()> handler);
    void ForgetStatus();
    void AddColorHandlers();
    void AddViewHandlers();
    void AddSolidWorksHandlers();
    void AddOptionAndHelpHandlers();
    void AddSolidWorksHandler(int command, void (SolidWorksCommands::*handler)());
    void RunSolidWorks(void (SolidWorksCommands::*handler)());
    void RunWatched(void (SolidWorksCommands::*handler)());
    void EndAfterOperation();
    void EditSelectedNode();
    void PlaceWindow();
    void ApplyLanguage();

    Parts parts_;
    ColorEditor editor_;
    ColorList list_;
    LibraryPanes panes_;
    LayoutController layout_;
    ViewCommands views_;
    EditingCommands editing_;
    ColorDrag drag_;
    SolidWorksCommands solidWorks_;
    CFormPos position_;
    std::map<int, Handler> handlers_; // by command number
    bool operationRuns_ = false;
    bool endRequested_ = false; // the user wants the program to end as soon as it is over
    BusyStatus busy_;
};
