// Rules: Language files and control texts
#include "support/language/clsMultiLanguage.h"

#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFiles.h"
#include "tests/fakes/FakeForm.h"
#include "tests/fakes/FakeProfile.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

constexpr const char* kIni = "C:\\prog\\tntlng_de.ini";
constexpr const char* kTemplate = "C:\\prog\\template.ini";

class clsMultiLanguageTest : public testing::Test {
protected:
    clsMultiLanguageTest() {
        files.contents[kIni] = "";
        language.SetIniFile(kIni);
        language.SetNewIniFile(kTemplate);
    }
    void Put(const std::string& key, const std::string& value,
             const std::string& section = "frmMain") {
        profile.values[{kIni, section, key}] = value;
    }

    FakeProfile profile;
    FakeFiles files;
    FakeCodePage codePage = FakeCodePage::Western();
    clsMultiLanguage language{profile, files, codePage};
    FakeForm form{"frmMain"};
};

TEST(clsMultiLanguage, StartsWithoutALanguageFile) {
    FakeProfile profile;
    FakeFiles files;
    const FakeCodePage codePage;
    clsMultiLanguage language(profile, files, codePage);
    EXPECT_EQ(language.IniFile(), "");
    EXPECT_EQ(language.GetInfoText(5), "INI file doesn't exists ");
}

TEST_F(clsMultiLanguageTest, PathWithoutAFileSetsNone) {
    language.SetIniFile("C:\\prog\\none.ini");
    EXPECT_EQ(language.IniFile(), "");
    language.SetIniFile(kIni);
    EXPECT_EQ(language.IniFile(), kIni);
    language.SetIniFile("");
    EXPECT_EQ(language.IniFile(), "");
}

TEST_F(clsMultiLanguageTest, MessageTextIsReadByItsNumber) {
    Put("Text.12", "zw\xF6lf", "Info");
    EXPECT_EQ(language.GetInfoText(12), "zwölf");
}

TEST_F(clsMultiLanguageTest, MissingMessageNamesItsNumber) {
    EXPECT_EQ(language.GetInfoText(17), "unknown infotext 17");
    EXPECT_EQ(language.GetInfoText(-1), "unknown infotext -1");
}

TEST_F(clsMultiLanguageTest, ValueOfThreeHundredCharactersIsCutTo255) {
    Put("Text.1", std::string(300, 'x'), "Info");
    EXPECT_EQ(language.GetInfoText(1), std::string(255, 'x'));
}

TEST_F(clsMultiLanguageTest, MenuTakesItsCaptionAlone) {
    FakeControl& menu = form.Add("mnuFile", "Menu");
    Put("mnuFile.Caption", "&Datei");
    Put("mnuFile.ToolTipText", "not read");
    language.SetAllControlText(form);
    EXPECT_EQ(menu.properties["Caption"], "&Datei");
    EXPECT_EQ(menu.properties["ToolTipText"], "built-in ToolTipText");
    EXPECT_EQ(profile.asked, Lines{"frmMain/mnuFile.Caption"});
}

TEST_F(clsMultiLanguageTest, CaptionedControlsTakeCaptionThenToolTip) {
    for (const char* type : {"Label", "Frame", "CommandButton", "CheckBox"}) {
        FakeForm other("frmMain");
        FakeControl& control = other.Add("x", type);
        Put("x.Caption", "caption");
        Put("x.ToolTipText", "tip");
        profile.asked.clear();
        language.SetAllControlText(other);
        EXPECT_EQ(control.properties["Caption"], "caption") << type;
        EXPECT_EQ(control.properties["ToolTipText"], "tip");
        EXPECT_EQ(profile.asked, (Lines{"frmMain/x.Caption", "frmMain/x.ToolTipText"}));
    }
}

TEST_F(clsMultiLanguageTest, PanesTakeTheirToolTipAlone) {
    for (const char* type : {"ListView", "TreeView", "StatusBar"}) {
        FakeForm other("frmMain");
        other.Add("x", type);
        profile.asked.clear();
        language.SetAllControlText(other);
        EXPECT_EQ(profile.asked, Lines{"frmMain/x.ToolTipText"}) << type;
    }
}

TEST_F(clsMultiLanguageTest, OtherTypesTakeNothingAndTypeNamesAreCaseSensitive) {
    for (const char* type : {"Slider", "menu", "LABEL", "ListBox"})
        form.Add("x", type);
    language.SetAllControlText(form);
    EXPECT_TRUE(profile.asked.empty());
}

TEST_F(clsMultiLanguageTest, MissingKeyLeavesTheTextAlsoWhereTheCodePageCannotHoldIt) {
    codePage = FakeCodePage::Cyrillic();
    FakeControl& menu = form.Add("mnuOptionsConfirmDel", "Menu");
    menu.properties["Caption"] = "Löschen immer bestätigen";
    language.SetAllControlText(form);
    EXPECT_EQ(menu.properties["Caption"], "Löschen immer bestätigen");
}

TEST_F(clsMultiLanguageTest, MissingKeyLeavesTheTextWhateverThePlatformTakesOffItsEnds) {
    FakeControl& label = form.Add("lblActiveColorName", "Label");
    for (const char* name : {"\"Quoted\"", "'Quoted'  ", "\"", "ends in blanks  ", " ", "\"\""}) {
        label.properties["Caption"] = name;
        language.SetAllControlText(form);
        EXPECT_EQ(label.properties["Caption"], name);
        profile.stripsFallbacks = true;
        language.SetAllControlText(form);
        EXPECT_EQ(label.properties["Caption"], name) << "stripped";
        profile.stripsFallbacks = false;
    }
}

TEST_F(clsMultiLanguageTest, DisabledTextBoxIsEnabledWhileItsTextIsSet) {
    FakeControl& box = form.Add("txt", "TextBox");
    box.isEnabled = false;
    Put("txt.Text", "7");
    language.SetAllControlText(form);
    EXPECT_EQ(box.properties["Text"], "7");
    EXPECT_EQ(box.enabledAtSet, (std::vector<bool>{true, false})) << "text, then tool tip";
    EXPECT_FALSE(box.isEnabled);
}

TEST_F(clsMultiLanguageTest, ControlArrayTakesItsTextsFromOnePairOfKeys) {
    FakeControl& first = form.Add("txtActiveColor", "TextBox");
    FakeControl& second = form.Add("txtActiveColor", "TextBox");
    Put("txtActiveColor.Text", "0");
    Put("txtActiveColor.ToolTipText", "tip");
    language.SetAllControlText(form);
    for (FakeControl* box : {&first, &second}) {
        EXPECT_EQ(box->properties["Text"], "0");
        EXPECT_EQ(box->properties["ToolTipText"], "tip");
    }
}

TEST_F(clsMultiLanguageTest, ComboBoxIsClearedAndFilledAndItsDefaultSelected) {
    FakeControl& box = form.Add("cmb", "ComboBox");
    box.list.entries = {"old"};
    Put("cmb.ListCount", "2");
    Put("cmb.AddItem0", "zero");
    Put("cmb.AddItem1", "one");
    Put("cmb.Default", "1");
    language.SetAllControlText(form);
    EXPECT_EQ(box.list.entries, (Lines{"zero", "one"}));
    EXPECT_EQ(box.list.selected, 1);
    EXPECT_EQ(profile.asked,
              (Lines{"frmMain/cmb.ListCount", "frmMain/cmb.AddItem0", "frmMain/cmb.AddItem1",
                     "frmMain/cmb.ToolTipText", "frmMain/cmb.Default"}));
}

TEST_F(clsMultiLanguageTest, ComboBoxWithoutListCountEndsEmpty) {
    FakeControl& box = form.Add("cmb", "ComboBox");
    box.list.entries = {"old"};
    box.list.selected = 0;
    language.SetAllControlText(form);
    EXPECT_TRUE(box.list.entries.empty());
    EXPECT_EQ(box.list.selected, -1);
}

TEST_F(clsMultiLanguageTest, ListBoxIsNeverLocalisedOnLoading) {
    FakeControl& box = form.Add("lst", "ListBox");
    box.list.entries = {"kept"};
    Put("lst.ListCount", "0");
    language.SetAllControlText(form);
    EXPECT_EQ(box.list.entries, Lines{"kept"});
}

TEST_F(clsMultiLanguageTest, BrokenListCountOrDefaultStopsTheWalk) {
    form.Add("cmb", "ComboBox");
    FakeControl& after = form.Add("lbl", "Label");
    Put("lbl.Caption", "never");
    for (const char* count : {"two", ""}) {
        Put("cmb.ListCount", count);
        EXPECT_THROW(language.SetAllControlText(form), RuntimeError);
    }
    Put("cmb.ListCount", "0");
    Put("cmb.Default", "5");
    EXPECT_THROW(language.SetAllControlText(form), RuntimeError);
    EXPECT_EQ(after.properties["Caption"], "built-in Caption");
}

TEST_F(clsMultiLanguageTest, PropertyThatAControlLacksIsAnError) {
    form.Add("lbl", "Label").properties.erase("ToolTipText");
    EXPECT_THROW(language.SetAllControlText(form), RuntimeError);
}

TEST_F(clsMultiLanguageTest, DropDownButtonWithThreeEntriesReadsSixKeys) {
    FakeControl& bar = form.Add("tlbarMain", "Toolbar");
    bar.toolbar.buttons = {{"New",
                            ToolbarButtonStyle::DropDown,
                            {{"NewMainNode", "a"}, {"NewGroup", "b"}, {"NewColor", "c"}},
                            {}}};
    Put("tlbarMain.New.NewGroup.Text", "Gruppe");
    Put("tlbarMain.New.ToolTipText", "Neu");
    language.SetAllControlText(form);
    EXPECT_EQ(
        profile.asked,
        (Lines{"frmMain/tlbarMain.New.Caption", "frmMain/tlbarMain.New.ToolTipText",
               "frmMain/tlbarMain.New.Description", "frmMain/tlbarMain.New.NewMainNode.Text",
               "frmMain/tlbarMain.New.NewGroup.Text", "frmMain/tlbarMain.New.NewColor.Text"}));
    EXPECT_EQ(bar.toolbar.MenuText(1, 2), "Gruppe");
    EXPECT_EQ(bar.toolbar.ButtonProperty(1, "ToolTipText"), "Neu");
}

TEST_F(clsMultiLanguageTest,
       SeparatorsAndPlaceholdersTakeNothingAndAButtonWithoutAKeyHasAnEmptyPart) {
    FakeControl& bar = form.Add("tlbarMain", "Toolbar");
    bar.toolbar.buttons = {{"sep", ToolbarButtonStyle::Separator, {}, {}},
                           {"room", ToolbarButtonStyle::Placeholder, {}, {}},
                           {"", ToolbarButtonStyle::Check, {}, {}}};
    language.SetAllControlText(form);
    EXPECT_EQ(profile.asked, (Lines{"frmMain/tlbarMain..Caption", "frmMain/tlbarMain..ToolTipText",
                                    "frmMain/tlbarMain..Description"}));
}

TEST_F(clsMultiLanguageTest, WithoutALanguageFileNothingIsRead) {
    language.SetIniFile("");
    form.Add("lbl", "Label");
    language.SetAllControlText(form);
    EXPECT_TRUE(profile.asked.empty());
}

TEST_F(clsMultiLanguageTest, TemplateHasTheOrderOfControlsAndProperties) {
    form.Add("mnu", "Menu");
    form.Add("lbl", "Label");
    form.Add("txt", "TextBox");
    form.Add("tv", "TreeView");
    form.Add("sld", "Slider");
    language.GetAllControlText(form);
    EXPECT_EQ(
        profile.written,
        (Lines{"frmMain/mnu.Caption=built-in Caption", "frmMain/lbl.Caption=built-in Caption",
               "frmMain/lbl.ToolTipText=built-in ToolTipText", "frmMain/txt.Text=built-in Text",
               "frmMain/txt.ToolTipText=built-in ToolTipText",
               "frmMain/tv.ToolTipText=built-in ToolTipText",
               "frmMain/sld.TypeName=Slider*** unbekannte Steuerelemente"}));
}

TEST_F(clsMultiLanguageTest, ListBoxAppearsInATemplate) {
    FakeControl& box = form.Add("lst", "ListBox");
    box.list.entries = {"a", "b"};
    box.list.selected = 1;
    language.GetAllControlText(form);
    EXPECT_EQ(profile.written,
              (Lines{"frmMain/lst.Default=1", "frmMain/lst.ListCount=2", "frmMain/lst.AddItem0=a",
                     "frmMain/lst.AddItem1=b", "frmMain/lst.ToolTipText=built-in ToolTipText"}));
}

TEST_F(clsMultiLanguageTest, ComboBoxAppearsInATemplate) {
    FakeControl& box = form.Add("cmb", "ComboBox");
    box.list.entries = {"a"};
    language.GetAllControlText(form);
    EXPECT_EQ(profile.written,
              (Lines{"frmMain/cmb.Default=-1", "frmMain/cmb.ListCount=1", "frmMain/cmb.AddItem0=a",
                     "frmMain/cmb.ToolTipText=built-in ToolTipText"}));
}

TEST_F(clsMultiLanguageTest, OneControlIsLoadedAloneAndOnlyWhileTheLanguageFileIsThere) {
    FakeControl& label = form.Add("lbl", "Label");
    FakeControl& other = form.Add("other", "Label");
    Put("lbl.Caption", "Farbe");
    Put("other.Caption", "Gruppe");
    language.SetControlText(form, label);
    EXPECT_EQ(label.properties["Caption"], "Farbe");
    EXPECT_EQ(other.properties["Caption"], "built-in Caption");
    files.contents.clear();
    language.SetControlText(form, other);
    EXPECT_EQ(other.properties["Caption"], "built-in Caption");
}

TEST_F(clsMultiLanguageTest, OneControlIsWrittenAlone) {
    FakeControl& menu = form.Add("mnuFile", "Menu");
    form.Add("other", "Menu");
    language.GetControlText(form, menu);
    EXPECT_EQ(profile.written, Lines{"frmMain/mnuFile.Caption=built-in Caption"});
}

TEST_F(clsMultiLanguageTest, TemplateHasTheToolbarsButtonsAndMenus) {
    FakeControl& bar = form.Add("tlbarMain", "Toolbar");
    bar.toolbar.buttons = {{"sep", ToolbarButtonStyle::Separator, {}, {}},
                           {"New", ToolbarButtonStyle::DropDown, {{"NewColor", "c"}}, {}}};
    language.GetAllControlText(form);
    EXPECT_EQ(
        profile.written,
        (Lines{"frmMain/tlbarMain.New.Caption=", "frmMain/tlbarMain.New.ToolTipText=",
               "frmMain/tlbarMain.New.Description=", "frmMain/tlbarMain.New.NewColor.Text=c"}));
}

TEST_F(clsMultiLanguageTest, IntegerOutsideSixteenBitsIsTheEmptyValue) {
    Put("n", "123");
    EXPECT_EQ(language.INIGetSettingInteger("frmMain", "n", kIni, 7), 123);
    EXPECT_EQ(language.INIGetSettingInteger("frmMain", "missing", kIni, 7), 7);
    for (const char* outside : {"40000", "32768", "-32769"}) {
        Put("n", outside);
        EXPECT_EQ(language.INIGetSettingInteger("frmMain", "n", kIni, 7), 0) << outside;
    }
    Put("n", "32767");
    EXPECT_EQ(language.INIGetSettingInteger("frmMain", "n", kIni, 7), 32767);
    Put("n", "-32768");
    EXPECT_EQ(language.INIGetSettingInteger("frmMain", "n", kIni, 7), -32768);
}

TEST_F(clsMultiLanguageTest, PathHasAFolderPartWithItsBackslashAndANamePart) {
    EXPECT_EQ(clsMultiLanguage::FileGetPathPart("C:\\a\\b.ini"), "C:\\a\\");
    EXPECT_EQ(clsMultiLanguage::FileGetNamePart("C:\\a\\b.ini"), "b.ini");
    EXPECT_EQ(clsMultiLanguage::FileGetPathPart("b.ini"), "");
    EXPECT_EQ(clsMultiLanguage::FileGetNamePart("b.ini"), "b.ini");
    EXPECT_EQ(clsMultiLanguage::FileGetPathPart("C:\\a\\"), "C:\\a\\");
    EXPECT_EQ(clsMultiLanguage::FileGetNamePart("C:\\a\\"), "");
}

TEST_F(clsMultiLanguageTest, FileThatVanishesIsNoLanguageFileAnyMore) {
    files.contents.clear();
    form.Add("lbl", "Label");
    language.SetAllControlText(form);
    EXPECT_TRUE(profile.asked.empty());
    EXPECT_EQ(language.GetInfoText(1), std::string("INI file doesn't exists ") + kIni);
}

TEST_F(clsMultiLanguageTest, TemplateNeedsNoLanguageFile) {
    language.SetIniFile("");
    form.Add("lbl", "Label");
    language.GetAllControlText(form);
    EXPECT_EQ(profile.written.size(), 2U);
    EXPECT_TRUE(profile.values.contains({kTemplate, "frmMain", "lbl.Caption"}));
}

TEST_F(clsMultiLanguageTest, ListCountBelowZeroAddsNothingAndOneOverSixteenBitsIsAnError) {
    FakeControl& box = form.Add("cmb", "ComboBox");
    Put("cmb.ListCount", "-3");
    language.SetAllControlText(form);
    EXPECT_TRUE(box.list.entries.empty());
    Put("cmb.ListCount", "2147483647");
    EXPECT_THROW(language.SetAllControlText(form), RuntimeError);
    EXPECT_TRUE(box.list.entries.empty());
}

TEST_F(clsMultiLanguageTest, WritingReportsWhatThePlatformReports) {
    EXPECT_TRUE(language.INIWriteSetting("s", "k", "Größe", kIni));
    EXPECT_EQ(profile.written.back(), "s/k=Gr\xF6\xDF"
                                      "e");
    profile.isReadOnly = true;
    EXPECT_FALSE(language.INIWriteSetting("s", "k", "v", kIni));
}

} // namespace
