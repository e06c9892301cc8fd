// Rules: Auxiliary windows
#include "common/ProgramNames.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/ScratchRegistry.h"
#include "tests/platform/SourceFile.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/RealProgram.h"

#include <set>

namespace {

constexpr UINT_PTR kTimer = 1;
constexpr UINT kSoon = 10; // milliseconds, instead of five seconds

// The real program with its three banner pictures, in a window that has room for them.
class BannerTimer : public testing::Test {
protected:
    BannerTimer() {
        program.application.Start();
        SetWindowPos(program.main.Handle(), nullptr, 0, 0, 1200, 700, SWP_NOMOVE | SWP_NOZORDER);
        PumpMessages();
    }

    [[nodiscard]] HWND Box() const { return FindChild(program.main.Handle(), IDC_picSponsor); }
    // The address that a click opens.
    std::string ClickedAddress() {
        program.shell.requests.clear();
        Click(Box(), {5, 5});
        return program.shell.requests.empty() ? "none" : program.shell.requests.front().file;
    }
    // What the box draws.
    [[nodiscard]] std::vector<COLORREF> Drawn() const {
        RedrawWindow(Box(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        RECT area{};
        GetClientRect(Box(), &area);
        const HDC screen = GetDC(Box());
        std::vector<COLORREF> pixels;
        for (int x = 0; x < area.right; x += 3)
            for (int y = 0; y < area.bottom; y += 3)
                pixels.push_back(GetPixel(screen, x, y));
        ReleaseDC(Box(), screen);
        return pixels;
    }

    ScratchFolder folder;
    ScratchRegistry registry;
    Win32AnsiCodePage codePage{1252};
    RealProgram program{registry, folder.Path(), codePage, nullptr,
                        SourceFile("resources/banners")};
};

TEST_F(BannerTimer, EachTickShowsTheNextPictureAndItsAddressAndRoundAgain) {
    ASSERT_NE(IsWindowVisible(Box()), FALSE);
    EXPECT_NE(KillTimer(program.main.Handle(), kTimer), FALSE) << "it runs since the start";
    EXPECT_EQ(ClickedAddress(), RealProgram::BannerAddress(1));
    std::set<std::vector<COLORREF>> pictures = {Drawn()};
    for (const int next : {2, 3, 1}) {
        SendMessageW(program.main.Handle(), WM_TIMER, kTimer, 0);
        EXPECT_EQ(ClickedAddress(), RealProgram::BannerAddress(next));
        pictures.insert(Drawn());
    }
    EXPECT_EQ(pictures.size(), 3U);
}

TEST_F(BannerTimer, PointerIsAHandOnlyOverAPictureWithAnAddress) {
    program.banners.SetLinks({true, false, true});
    const auto pointerOver = [&](int index) {
        program.main.SetBanner(index);
        SendMessageW(Box(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Box()),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return GetCursor();
    };
    EXPECT_EQ(pointerOver(1), LoadCursorW(nullptr, IDC_HAND));
    EXPECT_EQ(pointerOver(2), LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_EQ(pointerOver(3), LoadCursorW(nullptr, IDC_HAND));
}

TEST_F(BannerTimer, TimerOfTheWindowIsTheOneThatTicks) {
    SetTimer(program.main.Handle(), kTimer, kSoon, nullptr); // the same one, only sooner
    EXPECT_TRUE(PumpUntil([&] { return ClickedAddress() == RealProgram::BannerAddress(3); }));
}

TEST_F(BannerTimer, QuitStopsItAndStoresTheLastPicture) {
    SendMessageW(program.main.Handle(), WM_TIMER, kTimer, 0);
    program.Close();
    EXPECT_EQ(KillTimer(program.main.Handle(), kTimer), FALSE);
    EXPECT_EQ(registry.Get(std::string(ProgramNames::RegistryPath), "LastSponsorShown").bytes,
              std::string("2\0", 2));
}

} // namespace
