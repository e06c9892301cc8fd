#pragma once

#include "platform/Utf16.h"
#include "tests/ui/MainFormTest.h"

#include <array>
#include <commctrl.h>
#include <string>

// A real window beside the main one with a list in it, worked by keys and clicks.
template <typename Window, int ListId>
class ListFormTest : public MainFormTest {
protected:
    // A key that goes the way of the program's message loop.
    void Press(WPARAM key) {
        MSG down{GetFocus(), WM_KEYDOWN, key, 0, 0, {}};
        if (!window.TranslateKeys(down))
            SendMessageW(down.hwnd, WM_KEYDOWN, key, 0);
    }
    void PressButton(int id) const { SendMessageW(Inside(id), BM_CLICK, 0, 0); }
    void DoubleClick(int row) const { // -1: beside the rows
        NMITEMACTIVATE click{};
        click.hdr = {List(), ListId, static_cast<UINT>(NM_DBLCLK)};
        click.iItem = row;
        SendMessageW(window.Handle(), WM_NOTIFY, ListId, reinterpret_cast<LPARAM>(&click));
    }
    void Resize(int width, int height) const {
        SetWindowPos(window.Handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
        PumpMessages();
    }

    [[nodiscard]] HWND Inside(int id) const { return FindChild(window.Handle(), id); }
    [[nodiscard]] HWND List() const { return Inside(ListId); }
    [[nodiscard]] bool IsEnabled(int id) const { return IsWindowEnabled(Inside(id)) != FALSE; }
    [[nodiscard]] RECT PlaceOf(int id) const {
        RECT place{};
        GetWindowRect(Inside(id), &place);
        MapWindowPoints(nullptr, window.Handle(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    [[nodiscard]] std::string Cell(int row, int column) const {
        std::array<wchar_t, 64> text{};
        ListView_GetItemText(List(), row, column, text.data(), static_cast<int>(text.size()));
        return ToUtf8(text.data());
    }
    [[nodiscard]] int SelectedRow() const {
        return ListView_GetNextItem(List(), -1, LVNI_SELECTED);
    }

    Window window{form.Handle(), errors};
};
