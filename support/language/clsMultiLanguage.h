#pragma once

#include "common/ports/AnsiCodePage.h"
#include "common/ports/Files.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/LocalizableForm.h"
#include "common/ports/PrivateProfile.h"

#include <cstdint>
#include <string>

// The texts of the active language: a language file in the format of the private-profile functions,
// with one section for each form (keys made of control name, property and ".") and the section
// "Info" for the numbered message texts.  Nothing is kept from one walk over a form, or from one
// message text, to the next: an edited file holds at once.
class clsMultiLanguage : public InfoTexts {
public:
    clsMultiLanguage(PrivateProfile& profile, Files& files, const AnsiCodePage& codePage)
        : profile_(profile), files_(files), codePage_(codePage) {}

    // The INI helpers give the empty value (0, "", false) when their platform call fails.

    // 0 also for a stored number outside the 16-bit range.
    [[nodiscard]] std::int16_t INIGetSettingInteger(const std::string& section,
                                                    const std::string& key, const std::string& file,
                                                    std::int16_t fallback);
    // At most 255 characters of the code page.
    [[nodiscard]] std::string INIGetSettingString(const std::string& section,
                                                  const std::string& key, const std::string& file,
                                                  const std::string& fallback);
    bool INIWriteSetting(const std::string& section, const std::string& key,
                         const std::string& value, const std::string& file);

    // True when a normal file (no directory, not hidden, not system) matches the path, which may
    // hold wildcards.
    [[nodiscard]] bool FileExists(const std::string& path);
    [[nodiscard]] static std::string FileGetNamePart(const std::string& path);
    [[nodiscard]] static std::string FileGetPathPart(const std::string& path);

    // The active language file; empty when none is active.  A path without a file sets none.
    [[nodiscard]] const std::string& IniFile() const noexcept { return iniFile_; }
    void SetIniFile(const std::string& path);

    // Applies the language file to the controls of a form; a missing key leaves a text as it is.
    // Throws RuntimeError for a list's ListCount that is no number, a Default that is no entry, and
    // a property that a control does not have.
    void SetAllControlText(LocalizableForm& form);
    void SetControlText(const LocalizableForm& form, FormControl& control);

    // A message text.
    std::string GetInfoText(std::int32_t number) override;
    std::string GetInfoTextOr(std::int32_t number, const std::string& builtIn) override;

    // The file that the template writers write to; not checked.
    void SetNewIniFile(const std::string& path) { templateFile_ = path; }

    // Write a form's current texts as a template for a language file.
    void GetAllControlText(LocalizableForm& form);
    void GetControlText(const LocalizableForm& form, FormControl& control);

private:
    [[nodiscard]] std::string ReadOr(const std::string& section, const std::string& key,
                                     const std::string& current);
    void LoadControl(const std::string& section, FormControl& control);
    void LoadProperties(const std::string& section, FormControl& control);
    void LoadProperty(const std::string& section, FormControl& control,
                      const std::string& property);
    void LoadList(const std::string& section, FormControl& control);
    void LoadToolbar(const std::string& section, FormControl& control);
    void SaveList(const std::string& section, FormControl& control);
    void SaveToolbar(const std::string& section, FormControl& control);
    void Save(const std::string& section, const std::string& key, const std::string& value);

    PrivateProfile& profile_;
    Files& files_;
    const AnsiCodePage& codePage_;
    std::string iniFile_;
    std::string shownFile_; // whose texts the controls have: the last one that was active
    std::string templateFile_;
};
