// Rules: The program as a whole
#include "platform/controls/LabelEdit.h"

#include <gtest/gtest.h>

namespace {

class LabelEditTest : public testing::Test {
protected:
    ~LabelEditTest() override { DestroyWindow(box); }

    HWND box = CreateWindowW(L"EDIT", L"typed", WS_POPUP, 0, 0, 50, 20, nullptr, nullptr, nullptr,
                             nullptr);
    LabelEdit edit;
};

TEST_F(LabelEditTest, EndGivesTheTextOfTheBoxOnce) {
    edit.Begin(box, "before");
    EXPECT_EQ(edit.End(), "typed");
    EXPECT_EQ(edit.End(), std::nullopt) << "the same end is told again";
}

TEST_F(LabelEditTest, EndOfAnEditThatNeverBeganGivesNothing) {
    EXPECT_EQ(edit.End(), std::nullopt);
    edit.Begin(nullptr, "before");
    EXPECT_EQ(edit.End(), std::nullopt);
}

TEST_F(LabelEditTest, BoxThatHasGoneIsNoEmptyName) {
    edit.Begin(box, "before");
    DestroyWindow(box);
    EXPECT_EQ(edit.End(), std::nullopt);
}

TEST_F(LabelEditTest, EscapeGivesTheEditUpAndTheNextOneCounts) {
    edit.Begin(box, "before");
    SendMessageW(box, WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ(edit.End(), std::nullopt);
    edit.Begin(box, "before");
    SetWindowTextW(box, L"");
    EXPECT_EQ(edit.End(), "") << "an emptied box is an empty name";
}

} // namespace
