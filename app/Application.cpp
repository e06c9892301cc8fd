#include "app/Application.h"

#include "common/RuntimeError.h"

namespace {

std::string Joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

} // namespace

Application::Application(const Platform& platform, const Windows& windows, const Data& data)
    : windows_(windows), registry_(platform.registry, platform.codePage), settingsStore_(registry_),
      language_(platform.language), errors_(platform.errors),
      libraryFiles_(
          library_,
          {.files = platform.files, .codePage = platform.codePage, .clock = platform.calendar}),
      crashReports_(platform.files, platform.folders, data.recoveryFolder),
      recoveryFolder_({.files = platform.files,
                       .folders = platform.folders,
                       .copies = platform.copies,
                       .clock = platform.calendar},
                      data.recoveryFolder),
      recoveryKeeper_(PartsOfKeeper(platform)),
      solidWorks_({platform.automation, platform.retry, platform.prompts, language_,
                   windows.progress, platform.events, stopFlag_}),
      links_(platform.shell),
      banner_(links_, data.bannerAddresses, [this](int index) { ShowBanner(index); }),
      systemInformation_(
          {platform.registry, platform.codePage, platform.files, platform.shell, platform.prompts}),
      localisation_(language_, data.languageFolder, [this] { return LocalizableForms(); }),
      options_({settings_, localisation_, windows.mainView.bars, windows.mainWindow,
                [this] { settingsStore_.Save(settings_); }}),
      about_({windows.about, language_, settings_, registry_, links_, systemInformation_, banner_,
              data.version}),
      textViewer_({windows.textViewer, language_, platform.files, platform.codePage, settings_,
                   banner_, data.programFolder}),
      progress_(windows.progressWindow, language_, settings_, stopFlag_),
      panes_(windows.mainView, library_, platform.prompts, language_, platform.collation),
      newNodes_(PartsOfNewNodes(platform)), shownFiles_(PartsOfShownFiles(platform)),
      tips_(library_, language_), viewCommands_({.bars = windows.mainView.bars,
                                                 .tree = windows.mainView.tree,
                                                 .list = windows.mainView.list,
                                                 .editor = windows.mainView.editor},
                                                tips_, panes_.layout, settings_),
      editing_(PartsOfEditing(platform)), fileCommands_(PartsOfFileCommands(platform, data)),
      drag_(PartsOfDrag(platform)), historyCommands_({.history = library_.History(),
                                                      .panes = panes_.library,
                                                      .bars = windows.mainView.bars,
                                                      .texts = language_}),
      recover_(PartsOfRecover(platform)), palettes_(PartsOfPalettes(platform)),
      find_(PartsOfFind(data)),
      emptyListHint_({.library = library_,
                      .texts = language_,
                      .folders = platform.folders,
                      .sampleFolder = data.programFolder + "\\samples",
                      .canRecover = [this] { return !recoveryKeeper_.Entries().empty(); }}),
      operationReport_({.bars = windows.mainView.bars,
                        .prompts = platform.prompts,
                        .texts = language_,
                        .activity = panes_.activity}),
      solidWorksCommands_(PartsOfSolidWorks()), levels_(PartsOfLevels()),
      mainWindow_(PartsOfMainWindow(platform)) {
    library_.History().SetMostBytes(data.historyBytes);
}

// What the members made last need of those before them.

RecoveryKeeper::Parts Application::PartsOfKeeper(const Platform& platform) {
    return {.library = library_,
            .files = libraryFiles_,
            .folder = recoveryFolder_,
            .work = platform.background,
            .codePage = platform.codePage};
}

NewNodes::Parts Application::PartsOfNewNodes(const Platform& platform) {
    return {.library = library_,
            .panes = panes_.library,
            .editor = panes_.editor,
            .prompts = platform.prompts,
            .texts = language_};
}

ShownLibraryFiles::Parts Application::PartsOfShownFiles(const Platform& platform) {
    return {.files = libraryFiles_,
            .library = library_,
            .panes = panes_.library,
            .settings = settings_,
            .prompts = platform.prompts,
            .texts = language_,
            .progress = windows_.progress};
}

EditingCommands::Parts Application::PartsOfEditing(const Platform& platform) {
    return {.library = library_,
            .list = panes_.list,
            .panes = panes_.library,
            .newNodes = newNodes_,
            .settings = settings_,
            .clipboard = platform.clipboard,
            .prompts = platform.prompts,
            .texts = language_};
}

FileCommands::Parts Application::PartsOfFileCommands(const Platform& platform, const Data& data) {
    return {.library = library_,
            .files = shownFiles_,
            .disk = platform.files,
            .newNodes = newNodes_,
            .editing = editing_,
            .bars = windows_.mainView.bars,
            .settings = settings_,
            .prompts = platform.prompts,
            .texts = language_,
            .codePage = platform.codePage,
            .programFolder = data.programFolder};
}

ColorDrag::Parts Application::PartsOfDrag(const Platform& platform) {
    return {.pane = windows_.mainView.drag,
            .library = library_,
            .panes = panes_.library,
            .list = panes_.list,
            .editing = editing_,
            .prompts = platform.prompts,
            .texts = language_,
            .activity = panes_.activity};
}

RecoverCommands::Parts Application::PartsOfRecover(const Platform& platform) {
    return {.window = windows_.recover,
            .keeper = recoveryKeeper_,
            .folder = recoveryFolder_,
            .library = library_,
            .libraryFiles = libraryFiles_,
            .files = shownFiles_,
            .bars = windows_.mainView.bars,
            .prompts = platform.prompts,
            .language = language_,
            .settings = settings_,
            .registry = registry_};
}

PaletteCommands::Parts Application::PartsOfPalettes(const Platform& platform) {
    return {.library = library_,
            .panes = panes_.library,
            .editor = panes_.editor,
            .bars = windows_.mainView.bars,
            .frame = windows_.mainView.frame,
            .files = platform.files,
            .codePage = platform.codePage,
            .settings = settings_,
            .prompts = platform.prompts,
            .texts = language_};
}

FindCommands::Parts Application::PartsOfFind(const Data& data) {
    return {.window = windows_.find,
            .library = library_,
            .panes = panes_.library,
            .editor = panes_.editor,
            .list = windows_.mainView.list,
            .drag = drag_,
            .activity = panes_.activity,
            .language = language_,
            .settings = settings_,
            .registry = registry_,
            .mainWindow = windows_.mainWindow,
            .slice = data.findSlice};
}

SolidWorksCommands::Parts Application::PartsOfSolidWorks() {
    return {.tools = solidWorks_,
            .library = library_,
            .newNodes = newNodes_,
            .list = panes_.list,
            .panes = panes_.library,
            .editor = panes_.editor,
            .report = operationReport_,
            .texts = language_,
            .activity = panes_.activity};
}

LevelsCommands::Parts Application::PartsOfLevels() {
    return {.window = windows_.levels,
            .tools = solidWorks_,
            .editor = panes_.editor,
            .report = operationReport_,
            .activity = panes_.activity,
            .language = language_,
            .settings = settings_,
            .registry = registry_,
            .mainWindow = windows_.mainWindow,
            .runCommand = [this](int command) { mainWindow_.RunCommand(command); }};
}

MainCommands Application::Commands() {
    return {.file = fileCommands_,
            .library = library_,
            .newNodes = newNodes_,
            .editing = editing_,
            .history = historyCommands_,
            .find = find_,
            .recover = recover_,
            .palettes = palettes_,
            .panes = panes_.library,
            .editor = panes_.editor,
            .view = viewCommands_,
            .solidWorks = solidWorksCommands_,
            .levels = levels_,
            .options = options_,
            .about = about_,
            .textViewer = textViewer_,
            .quit = [this] { Quit(); }};
}

MainWindow::Parts Application::PartsOfMainWindow(const Platform& platform) {
    return {.view = windows_.mainView,
            .form = windows_.mainWindow,
            .panes = panes_,
            .drag = drag_,
            .commands = Commands(),
            .keeper = recoveryKeeper_,
            .settings = settings_,
            .registry = registry_,
            .texts = language_,
            .retry = platform.retry,
            .events = platform.events,
            .stopFlag = stopFlag_};
}

MainEvents Application::MainWindowEvents() noexcept {
    return {.frame = mainWindow_,
            .tree = panes_.library,
            .rows = panes_.list,
            .list = panes_.library,
            .hints = emptyListHint_,
            .editor = panes_.editor,
            .layout = panes_.layout,
            .drag = drag_,
            .banner = banner_};
}

void Application::Start() {
    const std::vector<std::string> unreadable = settingsStore_.Load(settings_);
    banner_.Start(settingsStore_.LoadLastSponsorShown());
    SetFormDefaults();
    // Reported once and only now: the messages have their language since the window has its texts.
    if (!unreadable.empty())
        errors_.ReportError(RuntimeError(ErrorNumber::TypeMismatch, ErrorTexts::StoredSettings,
                                         {Joined(unreadable)}));
    windows_.mainView.frame.ShowWindow();
    recover_.TellAtStart(crashReports_.TakeNew());
    windows_.mainView.list.HintChanged(); // too old copies are gone since it was asked
}

// A library that cannot be read must not keep the window from being shown.
void Application::SetFormDefaults() {
    try {
        mainWindow_.SetFormDefaults();
    } catch (const RuntimeError& error) {
        errors_.ReportError(error);
    }
}

void Application::Quit() {
    windows_.mainView.frame.StopBannerTimer();
    settingsStore_.SaveLastSponsorShown(banner_.IndexToStore());
    find_.ProgramEnding();
    levels_.ProgramEnding();
    windows_.mainView.frame.EndProgram();
    recoveryKeeper_.KeepAll();
}

void Application::ShowBanner(int index) {
    windows_.mainView.frame.SetBanner(index);
    // A window that is made later takes it when it is shown.
    if (AboutView* about = windows_.about.IfMade())
        about->SetBanner(index);
    if (TextViewerView* textViewer = windows_.textViewer.IfMade())
        textViewer->SetBanner(index);
}

std::vector<LocalizableForm*> Application::LocalizableForms() const {
    std::vector<LocalizableForm*> forms{&windows_.mainForm};
    if (AboutView* about = windows_.about.IfMade())
        forms.push_back(about);
    if (ProgressForm* progress = windows_.progressWindow.IfMade())
        forms.push_back(progress);
    return forms;
}
