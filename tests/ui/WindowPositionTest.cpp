// Rules: Window positions
#include "common/ProgramNames.h"
#include "platform/DpiScale.h"
#include "platform/WindowGeometry.h"
#include "support/settings/CFormPos.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/ScratchRegistry.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/RealProgram.h"

namespace {

constexpr const char* kPositions = "SOFTWARE\\Chromixs\\TNT4SWX\\Form Positions";

RECT PlaceOf(const frmMain& form) {
    RECT place{};
    GetWindowRect(form.Handle(), &place);
    return place;
}

void ExpectPlace(const frmMain& form, const RECT& expected) {
    const RECT place = PlaceOf(form);
    EXPECT_TRUE(EqualRect(&place, &expected))
        << place.left << "," << place.top << " " << WidthOf(place) << "x" << HeightOf(place);
}

// The real main window and the real registry, at the resolution of the session.
class WindowPosition : public MainFormTest {
protected:
    WindowPosition() { Keep(position, form); }
    static void Keep(CFormPos& kept, frmMain& window) {
        kept.SetForm(window);
        kept.SetRootKey(RegistryRoot::CurrentUser);
        kept.SetRegistryPath(ProgramNames::RegistryPath);
        kept.SetSubKey(ProgramNames::FormPositionsKey);
    }
    void Put(const std::string& text) { registry.PutText(kPositions, "frmMain", text); }
    void PlaceAt(int left, int top, int width, int height) const {
        SetWindowPos(form.Handle(), nullptr, left, top, width, height, SWP_NOZORDER);
    }

    ScratchRegistry registry;
    Win32AnsiCodePage codePage{1252};
    modRegistry access{registry, codePage};
    CFormPos position{access};
};

TEST_F(WindowPosition, SavedAndRestoredTenTimesIsTheSameRectangle) {
    form.ShowWindow();
    for (const RECT& place :
         {RECT{37, 53, 748, 570}, RECT{0, 0, 601, 499}, RECT{101, 7, 902, 800}}) {
        PlaceAt(place.left, place.top, WidthOf(place), HeightOf(place));
        const RECT before = PlaceOf(form);
        for (int time = 0; time < 10; ++time) {
            position.SaveForm();
            PlaceAt(5, 5, 500, 400);
            EXPECT_TRUE(position.RestoreForm(true));
            ExpectPlace(form, before);
        }
    }
}

TEST_F(WindowPosition, SavedTextNamesTheTwipsOfTheScreensResolution) {
    PlaceAt(30, 60, 600, 450);
    position.SaveForm();
    const auto twips = [](int pixels) {
        return std::to_string(pixels * 1440 / static_cast<int>(DpiOfScreen()));
    };
    EXPECT_EQ(registry.Get(kPositions, "frmMain").bytes, "L=" + twips(30) + ";T=" + twips(60) +
                                                             ";W=" + twips(600) +
                                                             ";H=" + twips(450) + ";S=0;" + '\0');
}

TEST_F(WindowPosition, WindowThatScalesItselfComesBackToTheSamePixels) {
    PlaceAt(37, 53, 711, 517);
    for (const WORD dpi : {WORD{120}, WORD{168}, WORD{192}}) {
        RECT place = PlaceOf(form);
        SendMessageW(form.Handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&place));
        for (int time = 0; time < 10; ++time) {
            position.SaveForm();
            EXPECT_TRUE(position.RestoreForm(true));
        }
        ExpectPlace(form, place);
    }
}

TEST_F(WindowPosition, MaximisedWindowIsSavedAsSuchAndOpensMaximised) {
    form.ShowWindow();
    form.SetState(WindowState::Maximised);
    position.SaveForm();
    EXPECT_TRUE(registry.Get(kPositions, "frmMain").bytes.ends_with(std::string("S=2;\0", 5)));
    frmMain next(errors, banners);
    CFormPos nextPosition(access);
    Keep(nextPosition, next);
    const RECT designed = PlaceOf(next);
    EXPECT_TRUE(nextPosition.RestoreForm(true));
    EXPECT_EQ(IsWindowVisible(next.Handle()), FALSE);
    ExpectPlace(next, designed);
    next.ShowWindow();
    EXPECT_NE(IsZoomed(next.Handle()), FALSE);
    next.SetState(WindowState::Normal);
    EXPECT_EQ(IsZoomed(next.Handle()), FALSE);
    EXPECT_EQ(WidthOf(PlaceOf(next)), WidthOf(designed)) << "the stored bounds are not applied";
}

TEST_F(WindowPosition, MinimisedWindowOpensMinimised) {
    Put("L=100;T=100;W=100;H=100;S=1;");
    EXPECT_TRUE(position.RestoreForm(true));
    form.ShowWindow();
    EXPECT_NE(IsIconic(form.Handle()), FALSE);
}

TEST_F(WindowPosition, WindowBeyondTheScreenComesBackOntoIt) {
    const TwipsSize screen = form.ScreenSize();
    Put("L=99999;T=99999;W=6000;H=5000;S=0;");
    EXPECT_TRUE(position.RestoreForm(true));
    const float pixel = DpiScale(DpiOfScreen()).ToTwips(1);
    EXPECT_NEAR(form.Bounds().left, screen.width - 6000, pixel);
    EXPECT_NEAR(form.Bounds().top, screen.height - 5000, pixel);
    Put("L=-700;T=-500;W=6000;H=5000;S=0;");
    EXPECT_TRUE(position.RestoreForm(true));
    EXPECT_EQ(PlaceOf(form).left, 0);
    EXPECT_EQ(PlaceOf(form).top, 0);
}

TEST_F(WindowPosition, NumbersBeyondAllScreensAreTaken) {
    for (const char* text : {"L=2147483647;T=2147483647;W=2147483647;H=2147483647;S=0;",
                             "L=-2147483648;T=-2147483648;W=-2147483648;H=-2147483648;S=0;",
                             "L=1e30;T=1e-30;W=.5;H=-0;S=0;", "W=0;H=0;", "rubbish"}) {
        Put(text);
        EXPECT_TRUE(position.RestoreForm(true)) << text;
    }
}

// From start to close box, as a person does it.
TEST_F(WindowPosition, ProgramThatIsClosedAndStartedTenTimesStandsWhereItStood) {
    const ScratchFolder folder;
    for (int time = 0; time < 10; ++time) {
        RealProgram program(registry, folder.Path(), codePage);
        program.application.Start();
        if (time == 0) {
            const TwipsSize screen = program.main.ScreenSize();
            const TwipsRect bounds = program.main.Bounds();
            EXPECT_NEAR(bounds.left, (screen.width - bounds.width) / 2, 15) << "first start";
            SetWindowPos(program.main.Handle(), nullptr, 43, 61, 813, 607, SWP_NOZORDER);
        }
        ExpectPlace(program.main, {43, 61, 43 + 813, 61 + 607});
        program.Close();
    }
}

} // namespace
