// Rules: Tree and list views
#include "mainwindow/panes/FieldBorder.h"
#include "platform/Utf16.h"
#include "tests/fakes/LibraryNodes.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/WindowPicture.h"

#include <algorithm>
#include <commctrl.h>

namespace {

constexpr ColorValueArray kRed{200, 30, 20, 60, 80, 50, 40, 0, 0};
constexpr ColorValueArray kGreen{20, 180, 90, 60, 80, 50, 40, 0, 0};

// What the tip of the node that the pointer is over shows, whichever it is.
class TipsOfNodes : public NodeTips {
public:
    [[nodiscard]] NodeTip TipOf(const std::string& key) const override {
        return key == "0D" ? NodeTip{"A library: 7 colors", {kRed, kGreen}, 5}
                           : NodeTip{"empty", {}, 0};
    }
};

class NodeTipsOfTree : public MainFormTest {
protected:
    NodeTipsOfTree() {
        form.ShowWindow();
        view.tree.NodeAdded(NodeOfLibrary("0D", "Library"), "");
        view.tree.NodeAdded(NodeOfLibrary("1D", "Other"), "0D");
        PumpMessages();
    }

    [[nodiscard]] HWND Tips() { return form.Tips().Window(); }
    void PointAt(int line) {
        const HWND tree = Child(IDC_tvColor);
        const auto height = static_cast<int>(SendMessageW(tree, TVM_GETITEMHEIGHT, 0, 0));
        const POINT inTree{50, height * line + height / 2};
        POINT at = inTree;
        ClientToScreen(tree, &at);
        SetCursorPos(at.x, at.y);
        SendMessageW(Tips(), TTM_SETDELAYTIME, TTDT_INITIAL, 1);
        PumpMessages();
        SendMessageW(tree, WM_MOUSEMOVE, 0, MAKELPARAM(inTree.x, inTree.y));
    }
    [[nodiscard]] bool IsTipShown() {
        return PumpUntil([this] { return IsWindowVisible(Tips()) != FALSE; });
    }
    [[nodiscard]] WindowPicture ShownTip() {
        RedrawWindow(Tips(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return PictureOf(Tips());
    }
    static int PixelsOf(const WindowPicture& picture, const ColorValueArray& values) {
        const DWORD wanted = static_cast<DWORD>(values[0] << 16 | values[1] << 8 | values[2]);
        return static_cast<int>(std::ranges::count_if(
            picture.pixels, [&](DWORD pixel) { return (pixel & 0xFFFFFF) == wanted; }));
    }
    static int HeightOfTip(const WindowPicture& picture) {
        return static_cast<int>(picture.pixels.size()) / picture.width;
    }

    TipsOfNodes tips;
};

TEST_F(NodeTipsOfTree, TipShowsTheColorsAboveItsText) {
    view.tree.ShowNodeTips(&tips);
    PointAt(0);
    ASSERT_TRUE(IsTipShown());
    const WindowPicture shown = ShownTip();
    EXPECT_EQ(PixelsOf(shown, kRed), 12 * 12) << "within border and margin";
    EXPECT_EQ(PixelsOf(shown, kGreen), 12 * 12);
    EXPECT_GT(HeightOfTip(shown), 30);
}

TEST_F(NodeTipsOfTree, NodeWithoutColorsHasTheTextAlone) {
    view.tree.ShowNodeTips(&tips);
    PointAt(0);
    ASSERT_TRUE(IsTipShown());
    const int withColors = HeightOfTip(ShownTip());
    PointAt(1);
    ASSERT_TRUE(IsTipShown());
    const WindowPicture shown = ShownTip();
    EXPECT_EQ(PixelsOf(shown, kRed), 0);
    EXPECT_LT(HeightOfTip(shown), withColors - 10);
}

TEST_F(NodeTipsOfTree, OffThereIsNoTipOfANodeWhoseNameIsWhole) {
    view.tree.ShowNodeTips(&tips);
    view.tree.ShowNodeTips(nullptr);
    NMTTDISPINFOW request{};
    request.hdr = {Tips(), reinterpret_cast<UINT_PTR>(Child(IDC_tvColor)),
                   static_cast<UINT>(TTN_GETDISPINFOW)};
    PointAt(0);
    SendMessageW(form.Handle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&request));
    EXPECT_EQ(ToUtf8(request.lpszText), "");
}

} // namespace
