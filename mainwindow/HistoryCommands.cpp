#include "mainwindow/HistoryCommands.h"

#include "common/ErrorText.h"
#include "common/InfoTextNumber.h"
#include "mainwindow/MenuCaption.h"
#include "resources/controls.h"

HistoryCommands::HistoryCommands(const Parts& parts) : parts_(parts) {
    parts_.history.onChange = [this] { ShowEntries(); };
}

HistoryCommands::~HistoryCommands() {
    parts_.history.onChange = nullptr;
}

void HistoryCommands::mnuEditUndo_Click() {
    if (parts_.history.NextUndo() == nullptr)
        return;
    const StepName step = *parts_.history.NextUndo();
    parts_.panes.Show(parts_.history.Undo());
    Report(InfoTextNumber::StepUndone, "Rückgängig gemacht: %1", step);
}

void HistoryCommands::mnuEditRedo_Click() {
    if (parts_.history.NextRedo() == nullptr)
        return;
    const StepName step = *parts_.history.NextRedo();
    parts_.panes.Show(parts_.history.Redo());
    Report(InfoTextNumber::StepRedone, "Wiederholt: %1", step);
}

void HistoryCommands::ShowEntries() {
    ShowEntry({IDM_mnuEditUndo, InfoTextNumber::UndoStep, "&Rückgängig: %1"},
              parts_.history.NextUndo());
    ShowEntry({IDM_mnuEditRedo, InfoTextNumber::RedoStep, "&Wiederholen: %1"},
              parts_.history.NextRedo());
}

void HistoryCommands::ShowEntry(const EntryTexts& entry, const StepName* step) {
    std::string text;
    if (step != nullptr)
        text = WithArguments(parts_.texts.GetInfoTextOr(entry.caption, entry.builtInCaption),
                             {NameOf(*step)});
    parts_.bars.SetMenuText(entry.command, text);
    parts_.bars.SetMenuEnabled(entry.command, step != nullptr);
}

void HistoryCommands::Report(std::int32_t textNumber, const char* builtIn, const StepName& step) {
    parts_.bars.SetInfoPanelText(
        WithArguments(parts_.texts.GetInfoTextOr(textNumber, builtIn), {NameOf(step)}));
}

std::string HistoryCommands::NameOf(const StepName& step) const {
    if (step.command != 0)
        return PlainCaption(parts_.bars.MenuCaption(step.command));
    return parts_.texts.GetInfoText(step.textNumber);
}
