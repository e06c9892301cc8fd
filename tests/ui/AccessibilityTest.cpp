// Rules: Names for screen readers
// Every control of every window has a name and a role in both languages.
#include "mainwindow/frmFind.h"
#include "mainwindow/frmLevels.h"
#include "mainwindow/frmRecover.h"
#include "platform/ComApartment.h"
#include "platform/Utf16.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32Files.h"
#include "platform/Win32PrivateProfile.h"
#include "standin/com/frmStandIn.h"
#include "standin/model/StandInModel.h"
#include "support/language/clsMultiLanguage.h"
#include "support/windows/frmAbout.h"
#include "support/windows/frmProgress.h"
#include "support/windows/frmTxtView.h"
#include "tests/platform/SourceFile.h"
#include "tests/ui/AccessibleNames.h"
#include "tests/ui/MainFormTest.h"

#include <iostream>

namespace {

class Accessibility : public MainFormTest, public testing::WithParamInterface<const char*> {
protected:
    Accessibility() {
        language.SetIniFile(
            SourceFile(std::string("resources/language/tntlng_") + GetParam() + ".ini"));
    }

    // What is seen only while the mouse drags, the icon beside the title that says the same, and
    // the header, which is named by its columns, have no name of their own.
    static bool NeedsName(const AccessibleControl& control) {
        return control.id != IDC_picSplitter && control.id != IDC_lblDrag &&
               control.id != IDC_picIcon && control.type != "SysHeader32";
    }

    void ExpectNames(Form& shown) {
        for (const AccessibleControl& control : AccessibleControlsOf(shown.Handle())) {
            std::cout << ToUtf8(ClassOf(shown.Handle())) << " " << control.id << " " << control.type
                      << ": \"" << control.name << "\", " << control.role << ", " << control.state
                      << "\n";
            EXPECT_TRUE(control.name != "" || !NeedsName(control))
                << control.id << " " << control.type;
            EXPECT_NE(control.role, "") << control.id << " " << control.type;
        }
    }
    template <typename LocalisedForm>
    void ExpectNamesInLanguage(LocalisedForm& shown) {
        language.SetAllControlText(shown);
        ExpectNames(shown);
    }

    ComApartment apartment;
    Win32Files files;
    Win32AnsiCodePage codePage;
    Win32PrivateProfile profile;
    clsMultiLanguage language{profile, files, codePage};
};

TEST_P(Accessibility, MainWindow) {
    view.editor.SetColorName("Red");
    view.editor.SetSmallSwatchCaption("Red (R:255 G:0 B:0)");
    view.bars.SetInfoPanelText("Okay");
    events.hintLines = {{.text = "Nothing is open."}, {.text = "Open", .command = IDM_mnuFileOpen}};
    form.ShowWindow();
    view.list.RowsChanged(0);
    ExpectNamesInLanguage(form);
}

TEST_P(Accessibility, About) {
    frmAbout about(form.Handle(), errors, banners);
    about.SetTitle("TNT4SWX");
    about.SetVersion("1.0.0");
    ExpectNamesInLanguage(about);
}

TEST_P(Accessibility, Viewer) {
    frmTxtView viewer(form.Handle(), errors, banners);
    viewer.SetNames("Document", "Text of the document");
    ExpectNames(viewer);
}

TEST_P(Accessibility, Progress) {
    frmProgress progress(form.Handle(), errors);
    SetDlgItemTextW(progress.Handle(), IDC_lblInfo, L"Reading the library ...");
    ExpectNamesInLanguage(progress);
}

TEST_P(Accessibility, Recover) {
    frmRecover recover(form.Handle(), errors);
    ExpectNamesInLanguage(recover);
}

TEST_P(Accessibility, Find) {
    frmFind find(form.Handle(), errors);
    find.SetStatus("12 of 3,400 colors");
    ExpectNamesInLanguage(find);
}

TEST_P(Accessibility, Levels) {
    frmLevels levels(form.Handle(), errors);
    levels.ShowSentence("The color of the part is seen.");
    ExpectNamesInLanguage(levels);
}

TEST_P(Accessibility, StandIn) {
    StandInModel model("default");
    ServedObjects objects;
    frmStandIn standIn(model, objects, errors);
    standIn.Open();
    ExpectNames(standIn);
}

INSTANTIATE_TEST_SUITE_P(Languages, Accessibility, testing::Values("de", "us"));

} // namespace
