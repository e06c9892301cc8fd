// Rules: Window positions
#include "support/settings/CFormPos.h"

#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFormWindow.h"
#include "tests/fakes/FakeRegistry.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kValue = "SOFTWARE\\Chromixs\\TNT4SWX\\Form Positions|frmMain";

class CFormPosTest : public testing::Test {
protected:
    CFormPosTest() {
        position.SetForm(form);
        position.SetRootKey(RegistryRoot::CurrentUser);
        position.SetRegistryPath("SOFTWARE\\Chromixs\\TNT4SWX");
        position.SetSubKey("Form Positions");
    }
    TwipsRect Restored(const std::string& text, bool check = true) {
        registry.SetText(kValue, text);
        EXPECT_TRUE(position.RestoreForm(check));
        return form.bounds;
    }

    FakeRegistry registry;
    FakeCodePage codePage = FakeCodePage::Western();
    modRegistry access{registry, codePage};
    FakeFormWindow form; // 9600 x 7200 on a screen of 15360 x 11520
    CFormPos position{access};
};

TEST(CFormPos, StartsWithTheMachinesRootAndTheProgramsTitle) {
    FakeRegistry registry;
    const FakeCodePage codePage;
    const modRegistry access(registry, codePage);
    const CFormPos position(access);
    EXPECT_EQ(position.RootKey(), 0x80000002U);
    EXPECT_EQ(position.RegistryPath(), "SOFTWARE\\TNT4SWX");
    EXPECT_EQ(position.SubKey(), "");
    EXPECT_EQ(position.Form(), nullptr);
}

TEST_F(CFormPosTest, PropertiesReadBack) {
    EXPECT_EQ(position.Form(), &form);
    EXPECT_EQ(position.RootKey(), 0x80000001U);
    EXPECT_EQ(position.RegistryPath(), "SOFTWARE\\Chromixs\\TNT4SWX");
    EXPECT_EQ(position.SubKey(), "Form Positions");
}

TEST_F(CFormPosTest, SavedTextHasFiveFieldsAndATrailingSemicolon) {
    position.SaveForm();
    EXPECT_EQ(registry.Text(kValue), "L=1200;T=900;W=9600;H=7200;S=0;");
    EXPECT_EQ(registry.values.at(kValue).bytes.back(), '\0');
    EXPECT_EQ(registry.rightsAsked.back(), 0x20006U);
}

TEST_F(CFormPosTest, MaximisedFormIsStoredWithItsBoundsAndStateTwo) {
    form.state = WindowState::Maximised;
    form.bounds = {-60, -60, 15480, 11640};
    position.SaveForm();
    EXPECT_EQ(registry.Text(kValue), "L=-60;T=-60;W=15480;H=11640;S=2;");
}

TEST_F(CFormPosTest, EmptySubKeyKeepsTheValueInThePathItself) {
    position.SetSubKey("");
    position.SaveForm();
    EXPECT_EQ(registry.written.back(), "SOFTWARE\\Chromixs\\TNT4SWX|frmMain");
}

TEST_F(CFormPosTest, WithoutAStoredValueNothingChanges) {
    EXPECT_FALSE(position.RestoreForm(true));
    EXPECT_EQ(form.moves, 0);
    EXPECT_EQ(registry.rightsAsked.back(), 0x1U);
}

TEST_F(CFormPosTest, ValueOfAnotherTypeIsNoPosition) {
    registry.values[kValue] = {RegistryType::Binary, "L=1;"};
    EXPECT_FALSE(position.RestoreForm(true));
}

TEST_F(CFormPosTest, StoredBoundsAreApplied) {
    EXPECT_EQ(Restored("L=100;T=200;W=3000;H=4000;S=0;"), (TwipsRect{100, 200, 3000, 4000}));
}

TEST_F(CFormPosTest, LeftEdgeBeyondTheScreenComesBackOntoIt) {
    EXPECT_EQ(Restored("L=20000;T=0;W=9600;H=7200;S=0;").left, 5760);
    EXPECT_EQ(Restored("L=15360;T=0;W=9600;H=7200;S=0;").left, 5760);
    EXPECT_EQ(Restored("L=15359;T=0;W=9600;H=7200;S=0;").left, 15359);
}

TEST_F(CFormPosTest, TopEdgeBeyondTheScreenComesBackOntoIt) {
    EXPECT_EQ(Restored("L=0;T=11520;W=9600;H=7200;S=0;").top, 4320);
}

TEST_F(CFormPosTest, NegativeEdgesBecomeZeroWithTheCheckAlone) {
    EXPECT_EQ(Restored("L=-10;T=-500;W=9600;H=7200;S=0;"), (TwipsRect{0, 0, 9600, 7200}));
    EXPECT_EQ(Restored("L=-10;T=-500;W=9600;H=7200;S=0;", false),
              (TwipsRect{-10, -500, 9600, 7200}));
}

TEST_F(CFormPosTest, FormWiderThanTheScreenKeepsItsWidth) {
    EXPECT_EQ(Restored("L=16000;T=0;W=20000;H=7200;S=0;"), (TwipsRect{0, 0, 20000, 7200}));
}

TEST_F(CFormPosTest, MaximisedAndMinimisedStatesMoveNothing) {
    EXPECT_EQ(Restored("L=1;T=2;W=3;H=4;S=2;"), (TwipsRect{1200, 900, 9600, 7200}));
    EXPECT_EQ(form.state, WindowState::Maximised);
    Restored("S=1;");
    EXPECT_EQ(form.state, WindowState::Minimised);
    EXPECT_EQ(form.moves, 0);
}

TEST_F(CFormPosTest, MissingFieldsAreZero) {
    EXPECT_EQ(Restored("L=10;T=20;"), (TwipsRect{10, 20, 0, 0}));
}

TEST_F(CFormPosTest, NumberFollowedByOtherCharactersStillCounts) {
    EXPECT_EQ(Restored("L=100x;T=1e2;W=50.5 ;H=51.5;S=0;"), (TwipsRect{100, 100, 50, 52}));
}

TEST_F(CFormPosTest, RubbishNeverFails) {
    for (const char* text :
         {"x", ";;;", "L=99999999999999;T=nan;W=inf;H=-;S=99999999999", "L=L=L=5;T==7", "S=7;"})
        static_cast<void>(Restored(text));
    EXPECT_EQ(Restored("L=99999999999999;T=5;W=1;H=1;S=0;"), (TwipsRect{0, 5, 1, 1}));
}

TEST_F(CFormPosTest, FormIsCentredOnTheScreenKeepingItsSize) {
    position.CenterForm();
    EXPECT_EQ(form.bounds, (TwipsRect{2880, 2160, 9600, 7200}));
}

TEST_F(CFormPosTest, FormLargerThanTheScreenIsCentredToNegativeEdges) {
    form.bounds = {0, 0, 20000, 12000};
    position.CenterForm();
    EXPECT_EQ(form.bounds, (TwipsRect{-2320, -240, 20000, 12000}));
}

TEST_F(CFormPosTest, SavingAndRestoringDoesNotDrift) {
    form.bounds = {1207.5F, 900, 9615, 7230};
    position.SaveForm();
    EXPECT_EQ(registry.Text(kValue), "L=1207.5;T=900;W=9615;H=7230;S=0;");
    EXPECT_TRUE(position.RestoreForm(true));
    const TwipsRect once = form.bounds;
    for (int round = 0; round < 10; ++round) {
        position.SaveForm();
        EXPECT_TRUE(position.RestoreForm(true));
    }
    EXPECT_EQ(form.bounds, once);
}

} // namespace
