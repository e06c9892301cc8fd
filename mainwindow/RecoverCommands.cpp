#include "mainwindow/RecoverCommands.h"

#include "common/ErrorText.h"
#include "common/FileNames.h"
#include "common/FirstError.h"
#include "common/InfoTextNumber.h"
#include "common/ProgramNames.h"
#include "common/Text.h"
#include "support/settings/modWindowsHandling.h"

#include <exception>

RecoverCommands::RecoverCommands(const Parts& parts) : parts_(parts), position_(parts.registry) {
    parts_.keeper.onFailed = [this] {
        parts_.bars.SetInfoPanelText(
            Text(InfoTextNumber::NotKept,
                 "Nicht gespeicherte Bibliotheken können gerade nicht gesichert werden."));
    };
    position_.SetRootKey(RegistryRoot::CurrentUser);
    position_.SetRegistryPath(ProgramNames::RegistryPath);
    position_.SetSubKey(ProgramNames::FormPositionsKey);
}

RecoverCommands::~RecoverCommands() {
    parts_.keeper.onFailed = nullptr;
}

std::string RecoverCommands::Text(std::int32_t number, const char* builtIn) const {
    return parts_.language.GetInfoTextOr(number, builtIn);
}

void RecoverCommands::TellAtStart(const std::string& crashReport) {
    parts_.folder.Tidy({});
    std::string status;
    if (const std::size_t count = parts_.keeper.Entries().size(); count > 0)
        status = WithArguments(
            Text(InfoTextNumber::CanBeRecovered,
                 "Nicht gespeicherte Bibliotheken: %1  -  Datei > Wiederherstellen ..."),
            {std::to_string(count)});
    if (!crashReport.empty())
        status += (status.empty() ? "" : "  -  ") +
                  WithArguments(Text(InfoTextNumber::ProgramCrashed,
                                     "Das Programm wurde unerwartet beendet. Bericht: %1"),
                                {crashReport});
    if (!status.empty())
        parts_.bars.SetInfoPanelText(status);
}

void RecoverCommands::mnuFileRecover_Click() {
    RecoverView& view = parts_.window.Get();
    parts_.language.SetAllControlText(view);
    view.SetWindowCaption(Text(InfoTextNumber::RecoverLibraries, "Bibliotheken wiederherstellen"));
    view.SetColumnCaptions({Text(InfoTextNumber::RecoverName, "Bibliothek"),
                            Text(InfoTextNumber::RecoverFile, "Datei"),
                            Text(InfoTextNumber::RecoverTime, "Stand"),
                            Text(InfoTextNumber::RecoverColors, "Farben")});
    ShowEntries();
    position_.SetForm(view);
    if (!position_.RestoreForm(true))
        position_.CenterForm();
    SetFormOnTop(view, parts_.settings.alwaysOnTop);
    std::vector<RecoveryEntry> chosen;
    for (const int row : view.ShowModal())
        chosen.push_back(entries_.at(static_cast<std::size_t>(row)));
    Open(chosen);
}

void RecoverCommands::ShowEntries() {
    entries_ = parts_.keeper.Entries();
    std::vector<RecoverRow> rows;
    rows.reserve(entries_.size());
    for (const RecoveryEntry& entry : entries_)
        rows.push_back(RowOf(entry));
    parts_.window.Get().SetRows(rows);
}

RecoverRow RecoverCommands::RowOf(const RecoveryEntry& entry) const {
    const RecoveryInfo& info = entry.info;
    return {info.libraryName.empty() ? entry.id : info.libraryName,
            info.filePath.empty() ? Text(InfoTextNumber::NeverSaved, "(nie gespeichert)")
                                  : info.filePath,
            info.time, std::to_string(info.colorCount)};
}

// One that is damaged keeps none of the others closed.
void RecoverCommands::Open(const std::vector<RecoveryEntry>& entries) {
    FirstError first;
    for (const RecoveryEntry& entry : entries)
        first.Watch([&] { Open(entry); });
    first.Rethrow();
}

// It is the library that it was: a save goes to its own file, and what that has in it stays beside.
// Of an entry that is damaged comes what can be read, and the entry stays.
void RecoverCommands::Open(const RecoveryEntry& entry) {
    const std::size_t before = parts_.library.Tree().MainNodes().size();
    std::exception_ptr error;
    ReadResult result = ReadResult::Failed;
    try {
        result = parts_.files.Read(parts_.folder.LibraryPath(entry.id));
    } catch (const RuntimeError&) {
        error = std::current_exception();
    }
    if (parts_.library.Tree().MainNodes().size() > before)
        TakeOver(entry, result);
    else if (!error)
        parts_.prompts.ShowMessage(parts_.language.GetInfoText(InfoTextNumber::OpenFailed) +
                                       parts_.folder.LibraryPath(entry.id),
                                   MessageStyle::Critical,
                                   parts_.language.GetInfoText(InfoTextNumber::Attention));
    if (error)
        std::rethrow_exception(error);
}

void RecoverCommands::TakeOver(const RecoveryEntry& entry, ReadResult result) {
    const std::string mainKey = parts_.library.Tree().MainNodes().back();
    SetPlace(mainKey, entry.info.filePath);
    if (result != ReadResult::Complete)
        return;
    parts_.keeper.IsOpenAgain(mainKey, entry.id);
    parts_.bars.SetInfoPanelText("Okay " + parts_.library.Tree().At(mainKey).text);
}

void RecoverCommands::SetPlace(const std::string& mainKey, const std::string& filePath) {
    parts_.library.Tree().SetSource(mainKey, filePath);
    if (filePath.empty())
        parts_.library.Tree().SetUnsaved(mainKey);
    else
        parts_.library.Tree().SetFile(mainKey, filePath);
    parts_.libraryFiles.ForgetFile(mainKey);
}

bool RecoverCommands::IsConfirmed(const std::string& what) {
    return parts_.prompts.ShowMessage(
               Text(InfoTextNumber::AskForget, "Endgültig löschen?") + kLineBreak + what,
               MessageStyle::YesNoQuestion,
               parts_.language.GetInfoText(InfoTextNumber::ColorLibraries)) == Answer::Yes;
}

void RecoverCommands::DeleteClicked(int row) {
    const RecoveryEntry entry = entries_.at(static_cast<std::size_t>(row));
    if (!IsConfirmed(RowOf(entry)[0]))
        return;
    parts_.folder.Remove(entry.id);
    ShowEntries();
}

void RecoverCommands::EmptyClicked() {
    std::string names;
    for (const RecoveryEntry& entry : entries_)
        names += RowOf(entry)[0] + kLineBreak;
    if (names.empty() || !IsConfirmed(names))
        return;
    for (const RecoveryEntry& entry : entries_)
        parts_.folder.Remove(entry.id);
    ShowEntries();
}

void RecoverCommands::RecoverUnloading() {
    position_.SaveForm();
}
