#include "mainwindow/MainWindow.h"

#include "common/InfoTextNumber.h"
#include "common/ProgramNames.h"
#include "common/ValueRestorer.h"
#include "resources/controls.h"

#include <utility>

namespace {

// The hour-glass, for as long as this lives.
class WaitingShown {
public:
    explicit WaitingShown(MainView& view) : view_(view) { view_.SetWaiting(true); }
    ~WaitingShown() { view_.SetWaiting(false); }
    WaitingShown(const WaitingShown&) = delete;
    WaitingShown& operator=(const WaitingShown&) = delete;

private:
    MainView& view_;
};

} // namespace

MainWindow::MainWindow(const Parts& parts)
    : parts_(parts), editor_(parts.view, parts.prompts, parts.texts),
      list_(parts.library, parts.view, parts.collation), panes_(parts.library, list_, editor_),
      layout_(parts.view), views_(parts.view, parts.view, layout_, parts.settings),
      editing_({parts.library, list_, panes_, parts.settings, parts.clipboard, parts.prompts,
                parts.texts}),
      drag_({parts.view, parts.library.Tree(), editing_, parts.prompts, parts.texts}),
      solidWorks_({parts.solidWorks, parts.library, list_, panes_, editor_, parts.view,
                   parts.prompts, parts.texts, endRequested_}),
      position_(parts.registry), busy_(parts.view, parts.texts, parts.events, endRequested_) {
    parts_.library.SetHost(panes_);
    parts_.library.Tree().Observe(&parts_.view);
    parts_.libraryFiles.SetHost(panes_);
    parts_.fileCommands.SetHost(*this);
    AddFileHandlers();
    AddColorHandlers();
    AddViewHandlers();
    AddSolidWorksHandlers();
    AddOptionAndHelpHandlers();
    views_.ShowDesignedState();
}

MainWindow::~MainWindow() {
    parts_.library.Tree().Observe(nullptr);
}

void MainWindow::SetFormDefaults() {
    PlaceWindow();
    ApplyLanguage();
    if (parts_.settings.alwaysOnTop)
        parts_.options.mnuOptionsAlwaysOnTop_Click();
    parts_.options.ShowConfirmDelAndCreateBackups();
    views_.ApplySettings();
    list_.AddColumns();
    editor_.ShowInitialColor();
    parts_.library.Colors().Reset();
    views_.SetListView(ListViewMode::Details);
    parts_.fileCommands.Autoload();
}

void MainWindow::PlaceWindow() {
    position_.SetForm(parts_.form);
    position_.SetRootKey(RegistryRoot::CurrentUser);
    position_.SetRegistryPath(ProgramNames::RegistryPath);
    position_.SetSubKey(ProgramNames::FormPositionsKey);
    if (!position_.RestoreForm(true))
        position_.CenterForm();
}

// Any other number leaves every text as it is built in.
void MainWindow::ApplyLanguage() {
    if (parts_.settings.language == 0)
        parts_.options.mnuOptionsLngGerman_Click();
    else if (parts_.settings.language == 1)
        parts_.options.mnuOptionsLngEnglish_Click();
}

void MainWindow::RunCommand(int command) {
    const auto handler = handlers_.find(command);
    if (handler == handlers_.end())
        return;
    drag_.Cancel();
    if (!operationRuns_) {
        // What stands in the box is meant: a menu, a button or a shortcut leaves the focus there.
        parts_.view.FinishLabelEdit();
        handler->second();
        return;
    }
    views_.ShowPressedView();
    if (command == IDM_mnuQuit)
        EndAfterOperation();
}

void MainWindow::EscapePressed() {
    if (operationRuns_)
        parts_.stopFlag = true;
}

void MainWindow::EndAfterOperation() {
    parts_.stopFlag = true;
    endRequested_ = true;
}

void MainWindow::AddFileHandlers() {
    FileCommands& files = parts_.fileCommands;
    AddReportingHandler(IDM_mnuFileNew, [&files] { files.mnuFileNew_Click(); });
    AddReportingHandler(IDM_mnuFileOpen, [&files] { files.mnuFileOpen_Click(); });
    AddReportingHandler(IDM_mnuFileSave, [&files] { files.mnuFileSave_Click(); });
    AddReportingHandler(IDM_mnuFileSaveAs, [&files] { files.mnuFileSaveAs_Click(); });
    AddReportingHandler(IDM_mnuFileClose, [&files] { files.mnuFileClose_Click(); });
    AddReportingHandler(IDM_mnuFileCancelAutoload,
                        [&files] { files.mnuFileCancelAutoload_Click(); });
    handlers_[IDM_mnuQuit] = parts_.quit;
}

void MainWindow::AddReportingHandler(int command, std::function<void()> handler) {
    handlers_[command] = [this, run = std::move(handler)] {
        ForgetStatus();
        run();
    };
}

// So that the status panel never tells of an earlier command.
void MainWindow::ForgetStatus() {
    ShowStatus({});
}

void MainWindow::AddColorHandlers() {
    ColorLibrary& library = parts_.library;
    handlers_[IDM_mnuColorNewMainNode] = [&library] { library.NewMainNode(); };
    handlers_[IDM_mnuColorNewGroup] = [&library] { library.NewGroupNode(); };
    handlers_[IDM_mnuColorNewColor] = [&library] { library.NewColorNode(); };
    handlers_[IDM_mnuColorRenameNode] = [this] { EditSelectedNode(); };
    handlers_[IDM_mnuColorDelMainNode] = [this] { editing_.DeleteMainNode(); };
    handlers_[IDM_mnuColorDelGroup] = [this] { editing_.DeleteGroup(); };
    handlers_[IDM_mnuColorDelColor] = [this] { editing_.DeleteColor(); };
    handlers_[IDM_mnuColorCopy] = [this] { editing_.Copy(); };
    handlers_[IDM_mnuColorCut] = [this] { editing_.Cut(); };
    handlers_[IDM_mnuColorPaste] = [this] { editing_.Paste(); };
    handlers_[IDM_mnuColorChange] = [this] { editor_.PickActiveColorFromDialog(); };
    handlers_[IDM_mnuColorUpdateColor] = [this] { panes_.UpdateFromColorPreview(); };
}

void MainWindow::AddViewHandlers() {
    for (const int command :
         {IDM_mnuViewToolbar, IDM_mnuViewStatusBar, IDM_mnuViewBarStandards, IDM_mnuViewBarColor,
          IDM_mnuViewBarListview, IDM_mnuViewBarSolidWorks, IDM_mnuViewHugeColorDialog})
        handlers_[command] = [this, command] { views_.Toggle(command); };
    for (const auto& [command, mode] :
         {std::pair{IDM_mnuViewColorLargeIcons, ListViewMode::LargeIcons},
          std::pair{IDM_mnuViewColorSmallIcons, ListViewMode::SmallIcons},
          std::pair{IDM_mnuViewColorList, ListViewMode::List},
          std::pair{IDM_mnuViewColorDetails, ListViewMode::Details}})
        handlers_[command] = [this, shown = mode] { views_.SetListView(shown); };
}

void MainWindow::AddSolidWorksHandlers() {
    using Commands = SolidWorksCommands;
    AddSolidWorksHandler(IDM_mnuSWXGetColor, &Commands::mnuSWXGetColor_Click);
    AddSolidWorksHandler(IDM_mnuSWXNewColorUpdate, &Commands::mnuSWXNewColorUpdate_Click);
    AddSolidWorksHandler(IDM_mnuSWXSetColor, &Commands::mnuSWXSetColor_Click);
    AddSolidWorksHandler(IDM_mnuSWXSetColorComponent, &Commands::mnuSWXSetColorComponent_Click);
    AddSolidWorksHandler(IDM_mnuSWXClearColorFromSelection,
                         &Commands::mnuSWXClearColorFromSelection_Click);
    AddSolidWorksHandler(IDM_mnuSWXClearComponentColorFromSelection,
                         &Commands::mnuSWXClearComponentColorFromSelection_Click);
    AddSolidWorksHandler(IDM_mnuSWXClearColorPart, &Commands::mnuSWXClearColorPart_Click);
    AddSolidWorksHandler(IDM_mnuSWXClearColorAssembly, &Commands::mnuSWXClearColorAssembly_Click);
    AddSolidWorksHandler(IDM_mnuSWXGetStandardColor, &Commands::mnuSWXGetStandardColor_Click);
    AddSolidWorksHandler(IDM_mnuSWXSetStandardColor, &Commands::mnuSWXSetStandardColor_Click);
}

void MainWindow::AddSolidWorksHandler(int command, void (SolidWorksCommands::*handler)()) {
    handlers_[command] = [this, handler] { RunSolidWorks(handler); };
}

// Calls to SolidWorks let the window handle events; nothing else is commanded until they are over.
void MainWindow::RunWatched(void (SolidWorksCommands::*handler)()) {
    const ValueRestorer running(operationRuns_, true);
    const WaitingShown waiting(parts_.view);
    const WatchedCalls watched(parts_.retry, busy_);
    (solidWorks_.*handler)();
}

void MainWindow::RunSolidWorks(void (SolidWorksCommands::*handler)()) {
    ForgetStatus();
    try {
        RunWatched(handler);
    } catch (const OperationStopped&) {
        parts_.view.SetInfoPanelText(parts_.texts.GetInfoText(InfoTextNumber::SolidWorksStopped));
    } catch (...) {
        // A user who has asked for the end meanwhile is not told what failed.
        if (!endRequested_)
            throw;
    }
    if (endRequested_)
        parts_.quit();
}

void MainWindow::AddOptionAndHelpHandlers() {
    Options& options = parts_.options;
    handlers_[IDM_mnuOptionsLngGerman] = [&options] { options.mnuOptionsLngGerman_Click(); };
    handlers_[IDM_mnuOptionsLngEnglish] = [&options] { options.mnuOptionsLngEnglish_Click(); };
    handlers_[IDM_mnuOptionsConfirmDel] = [&options] { options.mnuOptionsConfirmDel_Click(); };
    handlers_[IDM_mnuOptionsCreateBackups] = [&options] {
        options.mnuOptionsCreateBackups_Click();
    };
    handlers_[IDM_mnuOptionsAlwaysOnTop] = [&options] { options.mnuOptionsAlwaysOnTop_Click(); };
    handlers_[IDM_mnuOptionsSaveSettings] = [&options] { options.mnuOptionsSaveSettings_Click(); };
    handlers_[IDM_mnuHlpAbout] = [this] { parts_.about.ShowModal(); };
    handlers_[IDM_mnuHlpShowReadme] = [this] { parts_.textViewer.Show("readme"); };
    handlers_[IDM_mnuHlpShowLizenz] = [this] { parts_.textViewer.Show("lizenz"); };
}

void MainWindow::FilesDropped(const std::vector<std::string>& paths) {
    if (operationRuns_)
        return;
    parts_.view.FinishLabelEdit();
    ForgetStatus();
    parts_.fileCommands.OpenDropped(paths);
}

// The position is stored only here: Quit in the file menu does not pass, on purpose.
void MainWindow::WindowClosing() {
    position_.SaveForm();
    RunCommand(IDM_mnuQuit);
}

// The system may end the process as soon as this returns: nothing waits for an operation.
void MainWindow::SessionEnding() {
    position_.SaveForm();
    if (operationRuns_)
        EndAfterOperation();
    parts_.quit();
}

// The rows of another group end an edit in the list; what stands in the box is meant.
void MainWindow::NodeClicked(const std::string& key) {
    parts_.view.FinishLabelEdit();
    panes_.NodeClicked(key);
}

void MainWindow::NodeLabelEdited(const std::string& key, const std::string& text) {
    panes_.NodeLabelEdited(key, text);
}

void MainWindow::NodeEditRequested() {
    RunCommand(IDM_mnuColorRenameNode);
}

void MainWindow::EditSelectedNode() {
    if (!parts_.library.Tree().Selected().empty())
        parts_.view.EditNodeLabel(parts_.library.Tree().Selected());
}

std::string MainWindow::CellText(int row, int column) const {
    return list_.CellText(row, column);
}

int MainWindow::FindRow(const std::string& text, int start) const {
    return list_.FindRow(text, start);
}

void MainWindow::RowClicked(int row) {
    panes_.RowClicked(row);
}

void MainWindow::RowEditRequested() {
    if (const auto row = list_.SelectedRow(); row && MayEditRow())
        parts_.view.EditRowLabel(*row);
}

bool MainWindow::MayEditNode() const {
    return !operationRuns_;
}

bool MainWindow::MayEditRow() const {
    return !operationRuns_ && drag_.Mode() == DragMode::None;
}

void MainWindow::RowLabelEdited(int row, const std::string& text) {
    panes_.RowLabelEdited(row, text);
}

void MainWindow::ColumnClicked(int column) {
    parts_.view.FinishLabelEdit(); // the header leaves the focus where it is
    list_.ColumnClicked(column);
}

void MainWindow::ListPressed() {
    drag_.ListPressed();
}

bool MainWindow::DragStarted(const HeldKeys& keys, const DragPoint& at) {
    if (operationRuns_ || list_.SelectedKey().empty())
        return false;
    drag_.Start(keys, at);
    return true;
}

void MainWindow::DragMoved(const DragPoint& at) {
    drag_.Move(at);
}

void MainWindow::DragTicked(const DragPoint& at) {
    drag_.Tick(at);
}

void MainWindow::DragDropped(const DragPoint& at) {
    drag_.Drop(at);
}

void MainWindow::DragCancelled() {
    drag_.Cancel();
}

void MainWindow::ValueTextChanged(std::size_t index, const std::string& text) {
    editor_.TextChanged(index, text);
}

bool MainWindow::IsValueCharacter(char32_t character) const {
    return ColorEditor::IsValueCharacter(character);
}

void MainWindow::ValueFocused(std::size_t index) {
    editor_.Focused(index);
}

void MainWindow::SliderMoved(std::size_t index, int position) {
    editor_.SliderMoved(index, position);
}

void MainWindow::SwatchDoubleClicked() {
    RunCommand(IDM_mnuColorChange);
}

void MainWindow::Resized() {
    layout_.Resize();
}

void MainWindow::ScaleChanged() {
    layout_.Apply();
}

void MainWindow::Repainted() {
    editor_.Repainted();
}

void MainWindow::SplitterPressed() {
    layout_.SplitterPressed();
}

void MainWindow::SplitterDragged(float x) {
    layout_.SplitterDragged(x);
}

void MainWindow::SplitterReleased() {
    layout_.SplitterReleased();
}

void MainWindow::BannerTicked() {
    parts_.banner.Tick();
}

void MainWindow::BannerClicked() {
    parts_.banner.Click();
}

void MainWindow::ShowStatus(const std::string& text) {
    parts_.view.SetInfoPanelText(text);
}

void MainWindow::DeleteSelectedNode() {
    editing_.DeleteSelectedNode();
}
