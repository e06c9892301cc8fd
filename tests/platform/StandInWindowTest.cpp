// Rules: Stand-in for SolidWorks
#include "platform/ComApartment.h"
#include "platform/RunningObjects.h"
#include "platform/Utf16.h"
#include "tests/fakes/FakeWaitingClock.h"
#include "tests/platform/PollUntil.h"
#include "tests/platform/StandInProcess.h"
#include "tests/standin/StandInClient.h"

#include <array>
#include <commctrl.h>
#include <gtest/gtest.h>

namespace {

using StandInContract::Question;

// Reads and selects rows of the object list from this process.
class RemoteList {
public:
    explicit RemoteList(HWND list) : list_(list) {
        DWORD processId = 0;
        GetWindowThreadProcessId(list, &processId);
        process_ = KernelHandle(OpenProcess(
            PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId));
        memory_ = static_cast<char*>(VirtualAllocEx(process_.Get(), nullptr, kSize,
                                                    MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
    }
    RemoteList(const RemoteList&) = delete;
    RemoteList& operator=(const RemoteList&) = delete;
    ~RemoteList() { VirtualFreeEx(process_.Get(), memory_, 0, MEM_RELEASE); }

    [[nodiscard]] std::string Text(LRESULT row, int column) const {
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = reinterpret_cast<wchar_t*>(memory_ + kTextOffset);
        item.cchTextMax = kTextLength;
        Send(LVM_GETITEMTEXTW, row, item);
        std::array<wchar_t, kTextLength> text{};
        ReadProcessMemory(process_.Get(), memory_ + kTextOffset, text.data(),
                          sizeof(wchar_t) * text.size(), nullptr);
        return ToUtf8(text.data());
    }

    [[nodiscard]] LRESULT RowOf(const std::string& name) const {
        const LRESULT count = SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0);
        for (LRESULT row = 0; row < count; ++row)
            if (Text(row, 0) == name)
                return row;
        return -1;
    }

    void Select(LRESULT row, bool selected = true) const {
        LVITEMW item{};
        item.stateMask = LVIS_SELECTED;
        item.state = selected ? LVIS_SELECTED : 0;
        Send(LVM_SETITEMSTATE, row, item);
    }

    [[nodiscard]] bool IsSelected(LRESULT row) const {
        return SendMessageW(list_, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0;
    }

private:
    static constexpr SIZE_T kSize = 4096;
    static constexpr SIZE_T kTextOffset = 1024;
    static constexpr int kTextLength = 256;

    void Send(UINT message, LRESULT row, const LVITEMW& item) const {
        WriteProcessMemory(process_.Get(), memory_, &item, sizeof item, nullptr);
        SendMessageW(list_, message, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(memory_));
    }

    HWND list_;
    KernelHandle process_;
    char* memory_ = nullptr;
};

class StandInWindowTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(standIn.IsReady()); }

    [[nodiscard]] AutomationObjectPtr Document() {
        return objects.GetRunningObject("SldWorks.Application")->Get("ActiveDoc").AsObject();
    }
    [[nodiscard]] AutomationObjectPtr Selection() {
        return Document()->Get("SelectionManager").AsObject();
    }
    [[nodiscard]] std::string TextOf(StandInContract::ControlId id) const {
        std::array<wchar_t, 512> text{};
        SendMessageW(standIn.Control(id), WM_GETTEXT, text.size(),
                     reinterpret_cast<LPARAM>(text.data()));
        return ToUtf8(text.data());
    }
    void ClickPicture(LRESULT point, WPARAM keys = 0) const {
        SendMessageW(standIn.Control(StandInContract::Picture), WM_LBUTTONDOWN, MK_LBUTTON | keys,
                     point);
    }
    [[nodiscard]] LRESULT PointOf(const std::string& name) const {
        return standIn.Ask(Question::PicturePoint, list.RowOf(name));
    }
    [[nodiscard]] bool SelectionBecomes(int count) {
        return PollUntil(
            [&] { return Selection()->Get("GetSelectedObjectCount").AsInt32() == count; });
    }

    ComApartment apartment;
    FakeWaitingClock clock;
    BusyRetry retry{clock};
    RunningObjects objects{retry};
    StandInProcess standIn;
    RemoteList list{standIn.Control(StandInContract::ObjectList)};
};

TEST_F(StandInWindowTest, EveryObjectIsARowWithItsNameKindAndColor) {
    const LRESULT row = list.RowOf("Face 3");
    ASSERT_GE(row, 0);
    EXPECT_EQ(list.Text(row, 1), "face");
    EXPECT_EQ(list.Text(row, 2), "206, 58, 52");
    EXPECT_EQ(list.Text(list.RowOf("Edge 1"), 2), "");
    EXPECT_EQ(list.Text(list.RowOf("Boss"), 1), "feature");
}

TEST_F(StandInWindowTest, SelectingRowsSelectsTheirObjects) {
    list.Select(list.RowOf("Face 3"));
    ASSERT_TRUE(SelectionBecomes(1));
    list.Select(list.RowOf("Boss"));
    ASSERT_TRUE(SelectionBecomes(2));
    EXPECT_EQ(Selection()->Invoke("GetSelectedObjectType2", {1}).AsInt32(), 2);
    EXPECT_EQ(Selection()->Invoke("GetSelectedObjectType2", {2}).AsInt32(), 22);
    list.Select(-1, false);
    EXPECT_TRUE(SelectionBecomes(0));
}

TEST_F(StandInWindowTest, AClickInThePictureSelectsAndCtrlAdds) {
    ClickPicture(PointOf("Face 3"));
    ClickPicture(PointOf("Face 8"));
    EXPECT_TRUE(SelectionBecomes(1));
    ClickPicture(PointOf("Boss"), MK_CONTROL);
    EXPECT_TRUE(SelectionBecomes(2));
    EXPECT_TRUE(list.IsSelected(list.RowOf("Face 8")));
    EXPECT_TRUE(list.IsSelected(list.RowOf("Boss")));
    ClickPicture(PointOf("Face 8"), MK_CONTROL);
    EXPECT_TRUE(SelectionBecomes(1));
}

TEST_F(StandInWindowTest, AClickOnTheBackgroundSelectsNothing) {
    ClickPicture(PointOf("Face 3"));
    ClickPicture(MAKELPARAM(1, 1));
    EXPECT_TRUE(SelectionBecomes(0));
}

TEST_F(StandInWindowTest, AnEdgeIsNotInThePicture) {
    EXPECT_EQ(PointOf("Edge 1"), -1);
    EXPECT_EQ(standIn.Ask(Question::PicturePoint, 10'000), -1);
}

TEST_F(StandInWindowTest, WhatAClientSelectsIsSelectedInTheList) {
    const AutomationObjectPtr feature =
        StandInClient(objects.GetRunningObject("SldWorks.Application")).Feature(0);
    feature->Invoke("Select", {false});
    EXPECT_TRUE(PollUntil([&] { return list.IsSelected(list.RowOf("Base")); }));
    Document()->Get("ClearSelection");
    EXPECT_TRUE(PollUntil([&] { return !list.IsSelected(list.RowOf("Base")); }));
}

TEST_F(StandInWindowTest, AColorThatAClientSetsIsShown) {
    const AutomationObjectPtr feature =
        StandInClient(objects.GetRunningObject("SldWorks.Application")).Feature(0);
    feature->Invoke("Select", {false});
    feature->Invoke("SetMaterialPropertyValues",
                    {std::vector<double>{1, 0.5, 0, 0.25, 0, 0, 0, 0, 0}});
    EXPECT_EQ(list.Text(list.RowOf("Base"), 2), "255, 128, 0");
    EXPECT_TRUE(PollUntil([&] {
        return TextOf(StandInContract::Details) ==
               "Base\r\nOwn colour: set.  Seen: the colour of "
               "the feature\r\n[1, 0.5, 0, 0.25, 0, 0, 0, 0, 0]";
    })) << TextOf(StandInContract::Details);
}

TEST_F(StandInWindowTest, TheColorTableIsReadable) {
    EXPECT_EQ(TextOf(StandInContract::ColorTable).substr(0, 23), "Signal red: 200, 30, 36");
}

TEST_F(StandInWindowTest, AnEntryOfTheColorTableThatAClientSetsIsShown) {
    Document()->Get("GetColorTable").AsObject()->Invoke("SetColorRefAtIndex", {0, 0xFF8040, 0});
    EXPECT_TRUE(PollUntil([&] {
        return TextOf(StandInContract::ColorTable).starts_with("Signal red: 64, 128, 255\r\n");
    })) << TextOf(StandInContract::ColorTable);
}

TEST_F(StandInWindowTest, AComponentThatLosesItsColorShowsThatOfItsModel) {
    ASSERT_TRUE(standIn.Order("document assembly"));
    ASSERT_EQ(list.Text(list.RowOf("Cover-1"), 2), "170, 210, 224");
    const AutomationObjectPtr root =
        Document()->Get("GetActiveConfiguration").AsObject()->Get("GetRootComponent").AsObject();
    const AutomationObjectPtr cover =
        std::get<AutomationArray>(root->Get("GetChildren").data).at(1).AsObject();
    cover->Invoke("Select", {false});
    ASSERT_TRUE(PollUntil([&] { return list.IsSelected(list.RowOf("Cover-1")); }));
    EXPECT_TRUE(TextOf(StandInContract::Details).starts_with("Cover-1\r\nOwn colour: set."));
    cover->Get("RemoveMaterialProperty");
    EXPECT_TRUE(PollUntil([&] { return list.Text(list.RowOf("Cover-1"), 2) == "96, 152, 176"; }))
        << list.Text(list.RowOf("Cover-1"), 2);
    EXPECT_TRUE(PollUntil([&] {
        return TextOf(StandInContract::Details)
            .starts_with("Cover-1\r\nOwn colour: unset.  Seen: the colour of the part");
    })) << TextOf(StandInContract::Details);
}

TEST_F(StandInWindowTest, AnotherDocumentIsChosenInTheComboBox) {
    const HWND choice = standIn.Control(StandInContract::DocumentChoice);
    SendMessageW(choice, CB_SETCURSEL, 1, 0);
    SendMessageW(standIn.Window(), WM_COMMAND,
                 MAKEWPARAM(StandInContract::DocumentChoice, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(choice));
    EXPECT_EQ(Document()->Get("GetType").AsInt32(), 2);
    EXPECT_GE(list.RowOf("Face 2 of Cover-1"), 0);
    ClickPicture(PointOf("Face 2 of Cover-1"));
    const AutomationObjectPtr component =
        Selection()->Invoke("GetSelectedObjectsComponent", {1}).AsObject();
    EXPECT_EQ(component->Get("Name2").AsString(), "Cover-1");
}

TEST_F(StandInWindowTest, AnOrderThatIsNotUnderstoodIsAnsweredWithNo) {
    EXPECT_FALSE(standIn.Order("dance"));
    EXPECT_TRUE(standIn.Order("document none"));
    EXPECT_EQ(objects.GetRunningObject("SldWorks.Application")->Get("ActiveDoc").AsObject(),
              nullptr);
}

} // namespace
