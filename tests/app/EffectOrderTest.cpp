// Rules: Start-up and shut-down
#include "resources/controls.h"
#include "tests/fakes/Effects.h"

#include <gtest/gtest.h>

namespace {

std::string Mark(int command, bool checked) {
    return "mark " + std::to_string(command) + (checked ? " on" : " off");
}

const Effects kReading = {
    "read Language",
    "read AlwaysOnTop",
    "read ConfirmDel",
    "read CreateBackups",
    "read ViewToolbar",
    "read ViewBarStandards",
    "read ViewBarColor",
    "read ViewBarListview",
    "read ViewBarSolidWorks",
    "read ViewStatusBar",
    "read ViewHugeColorDialog",
    "read DefaultColorFile",
    "read ViewColorsInList",
    "read ViewMaterialPreview",
    "read LastSponsorShown",
    "banner 1",
};

const Effects kAfterTheViews = {"columns",
                                "color New Color",
                                Mark(IDM_mnuViewColorLargeIcons, false),
                                Mark(IDM_mnuViewColorSmallIcons, false),
                                Mark(IDM_mnuViewColorList, false),
                                Mark(IDM_mnuViewColorDetails, true),
                                "list view 3"};

Effects Joined(const std::vector<Effects>& parts) {
    Effects all;
    for (const Effects& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

class EffectOrder : public testing::Test {
protected:
    void Store(const std::string& name, const std::string& text) {
        program.registry.SetText(FakeProgram::Setting(name), text);
    }
    void StorePosition() {
        program.registry.SetText("SOFTWARE\\Chromixs\\TNT4SWX\\Form Positions|frmMain",
                                 "L=100;T=200;W=3000;H=4000;S=0;");
    }

    RecordedProgram program;
};

TEST_F(EffectOrder, FirstStartReadsThenCentresThenSetsUpTheWindowAndShowsItLast) {
    program.application.Start();
    EXPECT_EQ(program.effects,
              Joined({kReading,
                      {"read frmMain", "move window", Mark(IDM_mnuOptionsLngGerman, false),
                       Mark(IDM_mnuOptionsLngEnglish, true), "texts of the window",
                       Mark(IDM_mnuOptionsAlwaysOnTop, true), "window on top",
                       Mark(IDM_mnuOptionsConfirmDel, true),
                       Mark(IDM_mnuOptionsCreateBackups, true), Mark(IDM_mnuViewStatusBar, false),
                       Mark(IDM_mnuViewBarStandards, false), Mark(IDM_mnuViewBarListview, false)},
                      kAfterTheViews,
                      {"show window"}}));
}

TEST_F(EffectOrder,
       EveryViewThatDiffersFromTheDesignIsSwitchedInItsOrderAndTheLibraryIsLoadedLast) {
    StorePosition();
    Store("Language", "0");
    Store("AlwaysOnTop", "False");
    Store("ConfirmDel", "False");
    Store("ViewHugeColorDialog", "True");
    Store("ViewColorsInList", "True");
    Store("ViewMaterialPreview", "True");
    for (const char* name : {"ViewToolbar", "ViewBarColor", "ViewBarSolidWorks"})
        Store(name, "False");
    Store("DefaultColorFile", "C:\\a.tnt");
    program.files.contents["C:\\a.tnt"] = "\"D#Lib=0D:1\"\r\n\"G#g=0DG1\"\r\n";
    program.application.Start();
    EXPECT_EQ(program.effects,
              Joined({kReading,
                      {"read frmMain", "move window", Mark(IDM_mnuOptionsLngEnglish, false),
                       Mark(IDM_mnuOptionsLngGerman, true), "texts of the window",
                       Mark(IDM_mnuOptionsConfirmDel, false),
                       Mark(IDM_mnuOptionsCreateBackups, true), Mark(IDM_mnuViewStatusBar, false),
                       Mark(IDM_mnuViewHugeColorDialog, true), Mark(IDM_mnuViewToolbar, false),
                       Mark(IDM_mnuViewBarStandards, false), Mark(IDM_mnuViewBarColor, false),
                       Mark(IDM_mnuViewBarListview, false), Mark(IDM_mnuViewBarSolidWorks, false),
                       Mark(IDM_mnuViewColorsInList, true), Mark(IDM_mnuViewMaterialPreview, true)},
                      kAfterTheViews,
                      {"load C:\\a.tnt", "node Lib", "node g", "show window"}}));
}

TEST_F(EffectOrder, QuitStopsTheBannerThenStoresItsIndexThenEnds) {
    program.application.Start();
    program.effects.clear();
    program.application.MainWindowEvents().frame.RunCommand(IDM_mnuQuit);
    EXPECT_EQ(program.effects, (Effects{"stop banner", "write LastSponsorShown", "end"}));
}

TEST_F(EffectOrder, CloseBoxStoresThePositionAndThenQuits) {
    program.application.Start();
    program.effects.clear();
    program.application.MainWindowEvents().frame.WindowClosing();
    EXPECT_EQ(program.effects,
              (Effects{"write frmMain", "stop banner", "write LastSponsorShown", "end"}));
}

} // namespace
