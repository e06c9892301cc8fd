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
    const std::optional<StepLabel> step = parts_.history.NextUndo();
    if (!step)
        return;
    parts_.panes.Show(parts_.history.Undo());
    Report(InfoTextNumber::StepUndone, "Rückgängig gemacht: %1", *step);
}

void HistoryCommands::mnuEditRedo_Click() {
    const std::optional<StepLabel> step = parts_.history.NextRedo();
    if (!step)
        return;
    parts_.panes.Show(parts_.history.Redo());
    Report(InfoTextNumber::StepRedone, "Wiederholt: %1", *step);
}

void HistoryCommands::ShowEntries() {
    ShowEntry({IDM_mnuEditUndo, InfoTextNumber::UndoStep, "&Rückgängig: %1"},
              parts_.history.NextUndo());
    ShowEntry({IDM_mnuEditRedo, InfoTextNumber::RedoStep, "&Wiederholen: %1"},
              parts_.history.NextRedo());
}

void HistoryCommands::ShowEntry(const EntryTexts& entry, const std::optional<StepLabel>& step) {
    std::string text;
    if (step)
        text = WithArguments(parts_.texts.GetInfoTextOr(entry.caption, entry.builtInCaption),
                             {NameOf(*step)});
    parts_.bars.SetMenuText(entry.command, text);
    parts_.bars.SetMenuEnabled(entry.command, step.has_value());
}

void HistoryCommands::Report(std::int32_t textNumber, const char* builtIn, StepLabel step) {
    parts_.bars.SetInfoPanelText(
        WithArguments(parts_.texts.GetInfoTextOr(textNumber, builtIn), {NameOf(step)}));
}

std::string HistoryCommands::NameOf(StepLabel step) const {
    const StepName name = StepName::Of(step);
    if (name.command != 0)
        return PlainCaption(parts_.bars.MenuCaption(name.command));
    return parts_.texts.GetInfoText(name.textNumber);
}
