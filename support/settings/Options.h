#pragma once

#include "common/Settings.h"
#include "common/ports/FormWindow.h"
#include "common/ports/MenuMarks.h"
#include "support/language/Languages.h"
#include "support/language/Localisation.h"

#include <functional>
#include <map>

// The options menu.  A toggle flips the entry's check mark first; the setting then follows the
// mark.
class Options {
public:
    struct Parts {
        Settings& settings;
        Localisation& localisation;
        MenuMarks& menu;
        FormWindow& mainForm;
        std::function<void()> saveSettings;
    };

    explicit Options(Parts parts) : parts_(std::move(parts)) {}

    void mnuOptionsLngGerman_Click();
    void mnuOptionsLngEnglish_Click();
    void mnuOptionsConfirmDel_Click();
    void mnuOptionsCreateBackups_Click();
    void mnuOptionsAlwaysOnTop_Click();
    void mnuOptionsSaveSettings_Click() const;

    // Start-up: the language of the settings.  A number without one leaves every text as it is
    // built in.
    void ApplyLanguage();

    // Start-up: the marks of the two entries that no command sets then.
    void ShowConfirmDelAndCreateBackups();

private:
    void Choose(const Language& chosen);
    bool ToggleMark(int entry);
    void SetMark(int entry, bool checked);

    Parts parts_;
    std::map<int, bool> marks_; // entries start unchecked
};
