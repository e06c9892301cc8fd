#include "support/settings/Options.h"

#include "resources/controls.h"
#include "support/settings/modWindowsHandling.h"

void Options::mnuOptionsLngGerman_Click() {
    Choose(*FindLanguage(LanguageNumber::German));
}

void Options::mnuOptionsLngEnglish_Click() {
    Choose(*FindLanguage(LanguageNumber::English));
}

void Options::ApplyLanguage() {
    if (const Language* language = FindLanguage(parts_.settings.language))
        Choose(*language);
}

void Options::Choose(const Language& chosen) {
    parts_.settings.language = chosen.number;
    for (const Language& language : kLanguages)
        if (language.number != chosen.number)
            SetMark(language.command, false);
    SetMark(chosen.command, true);
    parts_.localisation.Choose(chosen.number);
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
