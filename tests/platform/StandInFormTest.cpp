// Rules: Stand-in for SolidWorks
#include "platform/ComApartment.h"
#include "platform/DpiScale.h"
#include "platform/Handles.h"
#include "platform/Utf16.h"
#include "platform/Win32EventPump.h"
#include "standin/com/frmStandIn.h"
#include "standin/model/StandInContract.h"
#include "tests/platform/PollUntil.h"
#include "tests/standin/StandInClient.h"
#include "tests/ui/RecordingErrorSink.h"

#include <array>
#include <commctrl.h>
#include <gtest/gtest.h>

namespace {

using StandInContract::Question;

// The stand-in's window in this process, so that what a client and the user do at the same time has
// one order.
class StandInFormTest : public testing::Test {
protected:
    [[nodiscard]] HWND List() const {
        return GetDlgItem(form.Handle(), StandInContract::ObjectList);
    }
    void SelectRow(int row, bool selected = true) const {
        LVITEMW item{};
        item.stateMask = LVIS_SELECTED;
        item.state = selected ? LVIS_SELECTED : 0;
        SendMessageW(List(), LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
    }
    [[nodiscard]] bool IsRowSelected(int row) const {
        return SendMessageW(List(), LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0;
    }
    [[nodiscard]] LRESULT Refreshes() const {
        return SendMessageW(form.Handle(), RegisterWindowMessageW(StandInContract::AskMessage),
                            static_cast<WPARAM>(Question::Refreshes), 0);
    }
    [[nodiscard]] std::string Details() const {
        std::array<wchar_t, 512> text{};
        GetDlgItemTextW(form.Handle(), StandInContract::Details, text.data(), 512);
        return ToUtf8(text.data());
    }
    [[nodiscard]] std::vector<std::string> SelectedNames() {
        std::vector<std::string> names;
        for (const SelectedItem& item : model.Part().CurrentSelection().Items())
            names.push_back(item.entity->Name());
        return names;
    }

    using Names = std::vector<std::string>;

    ComApartment apartment;
    RecordingErrorSink errors;
    StandInModel model{"features=2,faces=200"}; // rows 0 and 1 are the features
    std::shared_ptr<ServedObjects> objects = std::make_shared<ServedObjects>();
    frmStandIn form{model, *objects, errors};
    Win32EventPump pump;
};

TEST_F(StandInFormTest, WhatAClientSelectsMeanwhileIsNotUndoneByTheUsersChoice) {
    SelectRow(0);                         // reported soon
    model.Part().FaceAt(0)->Select(true); // a client is faster
    pump.ProcessPendingEvents();
    EXPECT_EQ(SelectedNames(), (Names{"Face 1", "Feature 1"}));
    EXPECT_TRUE(IsRowSelected(0));
    EXPECT_TRUE(IsRowSelected(2));
}

TEST_F(StandInFormTest, WhatAClientReplacesMeanwhileIsNotBroughtBack) {
    SelectRow(0);
    pump.ProcessPendingEvents();
    SelectRow(1);
    model.Part().FaceAt(0)->Select(false);
    pump.ProcessPendingEvents();
    EXPECT_EQ(SelectedNames(), (Names{"Face 1", "Feature 2"}));
    EXPECT_FALSE(IsRowSelected(0));
}

TEST_F(StandInFormTest, RowsThatTheUserTakesOffAreTakenOffAlone) {
    model.Part().FaceAt(0)->Select(true);
    model.Part().FaceAt(1)->Select(true);
    ASSERT_TRUE(PollUntil([&] {
        pump.ProcessPendingEvents();
        return IsRowSelected(3);
    }));
    SelectRow(2, false);
    pump.ProcessPendingEvents();
    EXPECT_EQ(SelectedNames(), Names{"Face 2"});
}

TEST_F(StandInFormTest, ManyChangesBroughtUpToDateTogetherCostOneRefresh) {
    const LRESULT before = Refreshes();
    for (const auto& face : model.Part().Faces()) {
        face->SetColor(MaterialValues{1, 0, 0, 0, 0, 0, 0, 0, 0});
        face->Select(false);
    }
    EXPECT_EQ(Refreshes(), before) << "nothing is painted while calls come in";
    ASSERT_TRUE(PollUntil([&] {
        pump.ProcessPendingEvents();
        return Refreshes() != before;
    }));
    EXPECT_EQ(Refreshes(), before + 1);
    pump.ProcessPendingEvents();
    EXPECT_EQ(Refreshes(), before + 1) << "and nothing is left to do";
    EXPECT_TRUE(Details().starts_with("Face 200\r\n")) << Details();
    EXPECT_TRUE(errors.reports.empty());
}

// The pixels of a control as they are on the screen.
std::vector<std::uint32_t> PixelsOf(HWND control) {
    RECT area{};
    GetClientRect(control, &area);
    const int width = WidthOf(area);
    const int height = HeightOf(area);
    const HDC window = GetDC(control);
    const MemoryDevice memory(CreateCompatibleDC(window));
    BitmapHandle bitmap(CreateCompatibleBitmap(window, width, height));
    const HGDIOBJ before = SelectObject(memory.Get(), bitmap.Get());
    BitBlt(memory.Get(), 0, 0, width, height, window, 0, 0, SRCCOPY);
    SelectObject(memory.Get(), before);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) *
                                      static_cast<std::size_t>(height));
    GetDIBits(window, bitmap.Get(), 0, static_cast<UINT>(height), pixels.data(), &info,
              DIB_RGB_COLORS);
    ReleaseDC(control, window);
    return pixels;
}

TEST_F(StandInFormTest, PanesLookAfterChangesAndResizesAsInAFreshWindow) {
    const auto show = [&](frmStandIn& window, int width, int height) {
        SetWindowPos(window.Handle(), HWND_TOP, 20, 20, width, height, SWP_SHOWWINDOW);
        pump.ProcessPendingEvents();
    };
    show(form, 950, 680);
    model.Part().FaceAt(3)->Select(false);
    ASSERT_TRUE(PollUntil([&] {
        pump.ProcessPendingEvents();
        return Details().starts_with("Face 4\r\n");
    }));
    show(form, 1200, 900);
    show(form, 1010, 720);
    constexpr std::array panes = {StandInContract::Picture, StandInContract::Details,
                                  StandInContract::ColorTable};
    std::array<std::vector<std::uint32_t>, panes.size()> changed;
    for (std::size_t i = 0; i < panes.size(); ++i)
        changed[i] = PixelsOf(GetDlgItem(form.Handle(), panes[i]));
    ShowWindow(form.Handle(), SW_HIDE);
    frmStandIn fresh(model, *objects, errors);
    show(fresh, 1010, 720);
    for (std::size_t i = 0; i < panes.size(); ++i)
        EXPECT_EQ(changed[i] == PixelsOf(GetDlgItem(fresh.Handle(), panes[i])), true) << panes[i];
}

TEST_F(StandInFormTest, ClearedColorIsSeenWithTheNextRefresh) {
    const auto face = model.Part().FaceAt(0);
    face->SetColor(MaterialValues{1, 0, 0, 0, 0, 0, 0, 0, 0});
    face->Select(false);
    const auto shows = [&](const char* text) {
        pump.ProcessPendingEvents();
        return Details().find(text) != std::string::npos;
    };
    ASSERT_TRUE(PollUntil([&] { return shows("Own colour: set"); })) << Details();
    face->SetColor(std::nullopt);
    EXPECT_TRUE(PollUntil([&] { return shows("the colour of the part"); })) << Details();
}

} // namespace
