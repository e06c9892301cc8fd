#include "mainwindow/HistoryCommands.h"

#include "common/ErrorText.h"
#include "common/InfoTextNumber.h"
#include "mainwindow/MenuCaption.h"
#include "resources/controls.h"

namespace {

// Of the steps that are no command.
const char* BuiltInName(std::int32_t textNumber) {
    switch (textNumber) {
    case InfoTextNumber::RenameColor:
        return "Farbe umbenennen";
    case InfoTextNumber::MoveColor:
        return "Farbe verschieben";
    default:
        return "Farbe kopieren";
    }
}

} // namespace

HistoryCommands::HistoryCommands(const Parts& parts) : parts_(parts) {
    parts_.history.onChange = [this] { ShowEntries(); };
}

HistoryCommands::~HistoryCommands() {
    parts_.history.onChange = nullptr;
}

void HistoryCommands::mnuEditUndo_Click() {
    Take(parts_.history.NextUndo(), &LibraryHistory::Undo,
         {InfoTextNumber::StepUndone, "Rückgängig gemacht: %1"});
}

void HistoryCommands::mnuEditRedo_Click() {
    Take(parts_.history.NextRedo(), &LibraryHistory::Redo,
         {InfoTextNumber::StepRedone, "Wiederholt: %1"});
}

void HistoryCommands::Take(const std::optional<StepLabel>& step,
                           LibraryView (LibraryHistory::*way)(), const StepText& report) {
    if (!step)
        return;
    parts_.panes.Show((parts_.history.*way)());
    parts_.bars.SetInfoPanelText(TextOf(report, *step));
}

void HistoryCommands::ShowEntries() {
    ShowEntry(IDM_mnuEditUndo, parts_.history.NextUndo(),
              {InfoTextNumber::UndoStep, "&Rückgängig: %1"});
    ShowEntry(IDM_mnuEditRedo, parts_.history.NextRedo(),
              {InfoTextNumber::RedoStep, "&Wiederholen: %1"});
}

void HistoryCommands::ShowEntry(int command, const std::optional<StepLabel>& step,
                                const StepText& caption) {
    parts_.bars.SetMenuText(command, step ? TextOf(caption, *step) : std::string());
    parts_.bars.SetMenuEnabled(command, step.has_value());
}

std::string HistoryCommands::TextOf(const StepText& text, StepLabel step) const {
    return WithArguments(parts_.texts.GetInfoTextOr(text.number, text.builtIn), {NameOf(step)});
}

std::string HistoryCommands::NameOf(StepLabel step) const {
    const StepName name = StepName::Of(step);
    if (name.command != 0)
        return PlainCaption(parts_.bars.MenuCaption(name.command));
    return parts_.texts.GetInfoTextOr(name.textNumber, BuiltInName(name.textNumber));
}
