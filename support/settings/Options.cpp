#include "support/settings/Options.h"

#include "resources/controls.h"
#include "support/settings/modWindowsHandling.h"

void Options::mnuOptionsLngGerman_Click() {
    ChooseLanguage(0, IDM_mnuOptionsLngGerman, IDM_mnuOptionsLngEnglish);
}

void Options::mnuOptionsLngEnglish_Click() {
    ChooseLanguage(1, IDM_mnuOptionsLngEnglish, IDM_mnuOptionsLngGerman);
}

void Options::ChooseLanguage(std::int16_t number, int chosenEntry, int otherEntry) {
    parts_.settings.language = number;
    SetMark(otherEntry, false);
    SetMark(chosenEntry, true);
    parts_.localisation.Choose(number);
}

void Options::mnuOptionsConfirmDel_Click() {
    parts_.settings.confirmDel = ToggleMark(IDM_mnuOptionsConfirmDel);
}

void Options::mnuOptionsCreateBackups_Click() {
    parts_.settings.createBackups = ToggleMark(IDM_mnuOptionsCreateBackups);
}

void Options::mnuOptionsAlwaysOnTop_Click() {
    parts_.settings.alwaysOnTop = ToggleMark(IDM_mnuOptionsAlwaysOnTop);
    SetFormOnTop(parts_.mainForm, parts_.settings.alwaysOnTop);
}

void Options::mnuOptionsSaveSettings_Click() const {
    parts_.saveSettings();
}

void Options::ShowConfirmDelAndCreateBackups() {
    SetMark(IDM_mnuOptionsConfirmDel, parts_.settings.confirmDel);
    SetMark(IDM_mnuOptionsCreateBackups, parts_.settings.createBackups);
}

bool Options::ToggleMark(int entry) {
    SetMark(entry, !marks_[entry]);
    return marks_[entry];
}

void Options::SetMark(int entry, bool checked) {
    marks_[entry] = checked;
    parts_.menu.SetMenuChecked(entry, checked);
}
