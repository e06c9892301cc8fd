// Rules: Language files and control texts
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32Files.h"
#include "platform/Win32PrivateProfile.h"
#include "mainwindow/frmFind.h"
#include "mainwindow/frmLevels.h"
#include "mainwindow/frmRecover.h"
#include "support/language/clsMultiLanguage.h"
#include "support/windows/frmAbout.h"
#include "support/windows/frmProgress.h"
#include "tests/platform/SourceFile.h"
#include "tests/ui/MainFormTest.h"

#include <algorithm>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>

namespace {

using Keys = std::set<std::string>; // "section/key"

// The platform's private-profile functions; keeps which keys are asked for.
class RecordingProfile : public Win32PrivateProfile {
public:
    std::string GetString(const std::string& section, const std::string& key,
                          const std::string& fallback, const std::string& file,
                          std::uint32_t bufferSize) override {
        asked.insert(section + "/" + key);
        return Win32PrivateProfile::GetString(section, key, fallback, file, bufferSize);
    }

    Keys asked;
};

std::string LanguageFile(const std::string& code) {
    return SourceFile("resources/language/tntlng_" + code + ".ini");
}

// The real forms that take their texts from a language file, and the class that gives them.
class LanguageFiles : public MainFormTest, public testing::WithParamInterface<const char*> {
protected:
    LanguageFiles() {
        language.SetIniFile(LanguageFile(GetParam()));
        for (LocalizableForm* localised : forms)
            language.SetAllControlText(*localised);
    }

    [[nodiscard]] Keys KeysOfFile() {
        Keys keys;
        std::istringstream lines(files.ReadWhole(language.IniFile()).value_or(""));
        std::string section;
        for (std::string line; std::getline(lines, line);) {
            const std::size_t equals = line.find('=');
            if (line.starts_with('['))
                section = line.substr(1, line.find(']') - 1);
            else if (!line.starts_with(';') && equals != std::string::npos)
                keys.insert(section + "/" + line.substr(0, equals));
        }
        return keys;
    }

    // What a user reads on the forms: captions, toolbar tips, entries of button menus.
    [[nodiscard]] Keys KeysThatAreRead() {
        // Set while the program runs.
        const std::set<std::string> ownTexts = {"lblVersion",          "lblTitle",
                                                "lblActiveColorName",  "lblActiveColor",
                                                "lblActiveColorSmall", "lblInfo"};
        Keys keys;
        for (LocalizableForm* localised : forms)
            for (FormControl* control : localised->Controls()) {
                const std::string prefix = localised->Name() + "/" + control->Name() + ".";
                if (control->Buttons())
                    AddButtons(*control->Buttons(), prefix, keys);
                else if (profile.asked.contains(prefix + "Caption") &&
                         !ownTexts.contains(control->Name()) && IsText(*control))
                    keys.insert(prefix + "Caption");
            }
        return keys;
    }

    static bool IsText(const FormControl& control) {
        const std::string caption = control.Property("Caption");
        return !caption.empty() && caption != "-";
    }

    static void AddButtons(const ToolbarButtons& buttons, const std::string& prefix, Keys& keys) {
        for (std::int32_t button = 1; button <= buttons.ButtonCount(); ++button) {
            const std::string buttonPrefix = prefix + buttons.ButtonKey(button) + ".";
            if (buttons.ButtonStyle(button) == ToolbarButtonStyle::Separator)
                continue;
            keys.insert(buttonPrefix + "ToolTipText");
            for (std::int32_t entry = 1; entry <= buttons.MenuCount(button); ++entry)
                keys.insert(buttonPrefix + buttons.MenuKey(button, entry) + ".Text");
        }
    }

    Win32Files files;
    Win32AnsiCodePage codePage;
    RecordingProfile profile;
    clsMultiLanguage language{profile, files, codePage};
    frmAbout about{form.Handle(), errors, banners};
    frmProgress progress{form.Handle(), errors};
    frmRecover recover{form.Handle(), errors};
    frmFind find{form.Handle(), errors};
    frmLevels levels{form.Handle(), errors};
    std::vector<LocalizableForm*> forms{&form, &about, &progress, &recover, &find, &levels};
};

Keys Without(const Keys& left, const Keys& right) {
    Keys rest;
    std::ranges::set_difference(left, right, std::inserter(rest, rest.end()));
    return rest;
}

TEST_P(LanguageFiles, FileIsThere) {
    EXPECT_NE(language.IniFile(), "");
}

TEST_P(LanguageFiles, EverythingThatAUserReadsOnTheFormsHasItsKey) {
    EXPECT_EQ(Without(KeysThatAreRead(), KeysOfFile()), Keys{});
}

TEST_P(LanguageFiles, NoKeyIsSuperfluous) {
    Keys ofForms = KeysOfFile();
    std::erase_if(ofForms, [](const std::string& key) { return key.starts_with("Info/"); });
    EXPECT_EQ(Without(ofForms, profile.asked), Keys{});
}

// The numbers that the code knows are those of one header.
TEST_P(LanguageFiles, MessagesAreThoseThatTheCodeHasANumberFor) {
    const std::string header = files.ReadWhole(SourceFile("common/InfoTextNumber.h")).value_or("");
    const std::regex number("std::int32_t \\w+ = (\\d+);");
    Keys ofCode;
    for (std::sregex_iterator found(header.begin(), header.end(), number), end; found != end;
         ++found)
        ofCode.insert("Info/Text." + found->str(1));
    ASSERT_GT(ofCode.size(), 30U);
    Keys ofFile = KeysOfFile();
    std::erase_if(ofFile, [](const std::string& key) { return !key.starts_with("Info/"); });
    EXPECT_EQ(Without(ofCode, ofFile), Keys{}) << "missing";
    EXPECT_EQ(Without(ofFile, ofCode), Keys{}) << "superfluous";
}

TEST_P(LanguageFiles, EveryControlOfTheEditorHasAToolTip) {
    EXPECT_TRUE(KeysOfFile().contains("frmMain/txtActiveColor.ToolTipText"));
    for (const char* label : {"lblActiveColor", "lblActiveColorSmall", "lblActiveColorName",
                              "lblRed", "lblGreen", "lblBlue", "lblAmbient", "lblDiffuse",
                              "lblSpecular", "lblShininess", "lblTransparency", "lblEmission"})
        EXPECT_TRUE(KeysOfFile().contains(std::string("frmMain/") + label + ".ToolTipText"))
            << label;
}

TEST_P(LanguageFiles, NoValueIsLongerThanTheLookUpsBuffer) {
    std::istringstream lines(files.ReadWhole(language.IniFile()).value_or(""));
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(line.size() - std::min(line.size(), line.find('=') + 1), 256U) << line;
}

TEST_P(LanguageFiles, TextsAreOnTheForms) {
    const std::string section = "frmMain";
    for (const char* name : {"mnuFile", "mnuQuit", "mnuOptionsConfirmDel", "lblGreen"})
        EXPECT_EQ(Control(name)->Property("Caption"),
                  language.INIGetSettingString(section, std::string(name) + ".Caption",
                                               language.IniFile(), "(missing)"))
            << name;
}

INSTANTIATE_TEST_SUITE_P(BothLanguages, LanguageFiles, testing::Values("de", "us"),
                         [](const auto& code) { return std::string(code.param); });

} // namespace
