// Rules: Recovery
// The real window that lists what can be recovered, worked by keys and clicks.

#include "mainwindow/frmRecover.h"
#include "platform/Utf16.h"
#include "tests/ui/ListFormTest.h"

#include <array>
#include <commctrl.h>
#include <functional>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;
using Rows = std::vector<RecoverRow>;
using Chosen = std::vector<int>;

class RecordingRecoverEvents : public RecoverEvents {
public:
    void DeleteClicked(int row) override {
        lines.push_back("delete " + std::to_string(row));
        if (onDelete)
            onDelete();
    }
    void EmptyClicked() override { lines.emplace_back("empty"); }
    void RecoverUnloading() override { lines.emplace_back("unloading"); }

    Lines lines;
    std::function<void()> onDelete;
};

const Rows& TwoRows() {
    static const Rows rows = {
        {"Paints", "C:\\paints.tnt", "2024-03-09 08:05:07", "12"},
        {"Metals", "(never saved)", "2024-03-08 08:05:07", "3"},
    };
    return rows;
}

class RecoverForm : public ListFormTest<frmRecover, IDC_lvRecover> {
protected:
    RecoverForm() {
        form.ShowWindow();
        window.Attach(recorded);
        window.SetColumnCaptions({"Library", "File", "As of", "Colors"});
    }

    // Opens the window with rows, does the action in it, and closes it if it is still open then.
    std::vector<int> Opened(const Rows& rows, std::function<void()> action) {
        window.SetRows(rows);
        static std::function<void()> pending;
        pending = [this, action = std::move(action)] {
            action();
            SendMessageW(window.Handle(), WM_CLOSE, 0, 0);
        };
        SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR timer, DWORD) {
            KillTimer(nullptr, timer);
            pending();
        });
        return window.ShowModal();
    }
    // The controls that the Tab key visits, from the one with the focus on.
    [[nodiscard]] std::vector<int> TabOrder() {
        std::vector<int> order;
        const HWND first = GetFocus();
        do {
            order.push_back(GetDlgCtrlID(GetFocus()));
            Press(VK_TAB);
        } while (GetFocus() != first && order.size() < 20);
        return order;
    }

    RecordingRecoverEvents recorded;
};

TEST_F(RecoverForm, OpensMaximisedWhenItWasClosedSo) {
    window.SetState(WindowState::Maximised);
    Opened(TwoRows(), [this] { EXPECT_NE(IsZoomed(window.Handle()), FALSE); });
}

TEST_F(RecoverForm, RowsShowNameFileTimeAndNumberOfColors) {
    window.SetRows(TwoRows());
    const HWND list = Inside(IDC_lvRecover);
    ASSERT_EQ(ListView_GetItemCount(list), 2);
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(Cell(row, column),
                      TwoRows()[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
    EXPECT_EQ(ListView_GetNextItem(list, -1, LVNI_SELECTED), 0);
}

TEST_F(RecoverForm, CaptionsGivenAgainReplaceThoseBefore) {
    window.SetColumnCaptions({"Bibliothek", "Datei", "Stand", "Farben"});
    const HWND header = ListView_GetHeader(Inside(IDC_lvRecover));
    EXPECT_EQ(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0), 4);
}

TEST_F(RecoverForm, ButtonsAreGreyWithoutRowsAndNotWithThem) {
    for (const Rows& rows : {Rows(), TwoRows(), Rows()}) {
        window.SetRows(rows);
        for (const int button : {IDC_cmdOpen, IDC_cmdOpenAll, IDC_cmdDelete, IDC_cmdEmpty})
            EXPECT_EQ(IsEnabled(button), !rows.empty()) << button;
        EXPECT_TRUE(IsEnabled(IDC_cmdClose));
    }
}

TEST_F(RecoverForm, EnterOpensTheSelectedRow) {
    EXPECT_EQ(Opened(TwoRows(), [&] { Press(VK_RETURN); }), Chosen{0});
    EXPECT_EQ(Opened(TwoRows(),
                     [&] {
                         Press(VK_DOWN);
                         Press(VK_RETURN);
                     }),
              Chosen{1});
    EXPECT_EQ(recorded.lines, (Lines{"unloading", "unloading"}));
}

TEST_F(RecoverForm, DoubleClickAndTheButtonOpenTheSelectedRow) {
    EXPECT_EQ(Opened(TwoRows(),
                     [&] {
                         Press(VK_DOWN);
                         DoubleClick(1);
                     }),
              Chosen{1});
    EXPECT_EQ(Opened(TwoRows(), [&] { PressButton(IDC_cmdOpen); }), Chosen{0});
    EXPECT_EQ(Opened(TwoRows(), [&] { DoubleClick(-1); }), Chosen{}) << "beside the rows";
}

TEST_F(RecoverForm, OpenAllOpensEachRow) {
    EXPECT_EQ(Opened(TwoRows(), [&] { PressButton(IDC_cmdOpenAll); }), (Chosen{0, 1}));
}

TEST_F(RecoverForm, EscapeTheCloseBoxAndItsButtonOpenNothing) {
    EXPECT_EQ(Opened(TwoRows(), [&] { Press(VK_ESCAPE); }), Chosen{});
    EXPECT_EQ(Opened(TwoRows(), [] {}), Chosen{});
    EXPECT_EQ(Opened(TwoRows(), [&] { PressButton(IDC_cmdClose); }), Chosen{});
    EXPECT_EQ(recorded.lines, (Lines{"unloading", "unloading", "unloading"}));
    EXPECT_EQ(IsWindowVisible(window.Handle()), FALSE);
    EXPECT_NE(IsWindowEnabled(form.Handle()), FALSE);
}

TEST_F(RecoverForm, KeysWithoutRowsDoNothingButClose) {
    bool staysOpen = false;
    const auto chosen = Opened({}, [&] {
        for (const WPARAM key :
             {WPARAM{VK_RETURN}, WPARAM{VK_DELETE}, WPARAM{VK_DOWN}, WPARAM{VK_F2}})
            Press(key);
        staysOpen = IsWindowVisible(window.Handle()) != FALSE;
    });
    EXPECT_EQ(chosen, Chosen{});
    EXPECT_TRUE(staysOpen);
    EXPECT_EQ(recorded.lines, Lines{"unloading"});
}

TEST_F(RecoverForm, DeleteKeyAsksForTheSelectedRowOnlyInTheList) {
    static_cast<void>(Opened(TwoRows(), [&] {
        Press(VK_DOWN);
        Press(VK_DELETE);
        Press(VK_TAB);
        Press(VK_DELETE);
        PressButton(IDC_cmdDelete);
        PressButton(IDC_cmdEmpty);
    }));
    EXPECT_EQ(recorded.lines, (Lines{"delete 1", "delete 1", "empty", "unloading"}));
}

TEST_F(RecoverForm, FocusGoesToTheListWhenTheLastRowIsDeletedByTheButton) {
    recorded.onDelete = [&] { window.SetRows({}); };
    HWND focused = nullptr;
    static_cast<void>(Opened(TwoRows(), [&] {
        SetFocus(Inside(IDC_cmdDelete));
        PressButton(IDC_cmdDelete);
        focused = GetFocus();
    }));
    EXPECT_EQ(focused, Inside(IDC_lvRecover));
}

TEST_F(RecoverForm, TabVisitsTheListAndTheButtonsThatCanBePressed) {
    std::vector<int> order;
    static_cast<void>(Opened(TwoRows(), [&] { order = TabOrder(); }));
    EXPECT_EQ(order, (std::vector<int>{IDC_lvRecover, IDC_cmdOpen, IDC_cmdOpenAll, IDC_cmdDelete,
                                       IDC_cmdEmpty, IDC_cmdClose}));
    static_cast<void>(Opened({}, [&] { order = TabOrder(); }));
    EXPECT_EQ(order, (std::vector<int>{IDC_lvRecover, IDC_cmdClose}));
}

TEST_F(RecoverForm, OwnerIsDisabledWhileTheWindowIsOpen) {
    bool wasDisabled = false;
    static_cast<void>(
        Opened(TwoRows(), [&] { wasDisabled = IsWindowEnabled(form.Handle()) == FALSE; }));
    EXPECT_TRUE(wasDisabled);
}

TEST_F(RecoverForm, SmallestWindowHoldsItsButtonsBesideEachOther) {
    SetWindowPos(window.Handle(), nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
    PumpMessages();
    RECT area{};
    GetClientRect(window.Handle(), &area);
    LONG last = 0;
    for (const int button :
         {IDC_cmdOpen, IDC_cmdOpenAll, IDC_cmdDelete, IDC_cmdEmpty, IDC_cmdClose}) {
        RECT place{};
        GetWindowRect(Inside(button), &place);
        MapWindowPoints(nullptr, window.Handle(), reinterpret_cast<POINT*>(&place), 2);
        EXPECT_GE(place.left, last) << button;
        EXPECT_LE(place.right, area.right) << button;
        EXPECT_LE(place.bottom, area.bottom) << button;
        last = place.right;
    }
}

} // namespace
