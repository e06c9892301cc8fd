#include "tests/e2e/RemoteList.h"

#include "platform/Utf16.h"
#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteMemory.h"
#include "tests/platform/PollUntil.h"

#include <algorithm>
#include <commctrl.h>
#include <cstdlib>
#include <stdexcept>

namespace {

// Two clicks at one place may be a double click, those at two places never are.
POINT AsideOfPointer(POINT at) {
    const int reach = GetSystemMetrics(SM_CXDOUBLECLK);
    POINT pointer{};
    GetCursorPos(&pointer);
    return {std::abs(pointer.x - at.x) < reach ? at.x + 2 * reach : at.x, at.y};
}

std::string InBrackets(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += " [" + name + "]";
    return text;
}

} // namespace

int RemoteList::RowCount() const {
    return static_cast<int>(SendMessageW(window_.Handle(), LVM_GETITEMCOUNT, 0, 0));
}

HWND RemoteList::Header() const {
    return reinterpret_cast<HWND>(SendMessageW(window_.Handle(), LVM_GETHEADER, 0, 0));
}

int RemoteList::ColumnCount() const {
    return static_cast<int>(SendMessageW(Header(), HDM_GETITEMCOUNT, 0, 0));
}

int RemoteList::TopRow() const {
    return static_cast<int>(SendMessageW(window_.Handle(), LVM_GETTOPINDEX, 0, 0));
}

DWORD RemoteList::ViewStyle() const {
    return static_cast<DWORD>(GetWindowLongPtrW(window_.Handle(), GWL_STYLE)) & LVS_TYPEMASK;
}

RemoteWindow RemoteList::LabelEdit() const {
    return RemoteWindow(
        reinterpret_cast<HWND>(SendMessageW(window_.Handle(), LVM_GETEDITCONTROL, 0, 0)));
}

void RemoteList::ClickColumn(int column) const {
    const RemoteMemory memory(Header());
    RECT bounds{};
    memory.Send(HDM_GETITEMRECT, static_cast<WPARAM>(column), bounds);
    RealInput::Click(AsideOfPointer(RemoteWindow(Header()).ToScreen(CentreOf(bounds))));
}

std::string RemoteList::Cell(int row, int column) const {
    const RemoteMemory memory(window_.Handle());
    LVITEMW request{};
    request.iSubItem = column;
    request.pszText = memory.TextAddress();
    request.cchTextMax = static_cast<int>(RemoteMemory::kTextCharacters);
    const LRESULT length = memory.Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), request);
    return ToUtf8(memory.Text().substr(0, static_cast<std::size_t>(length)));
}

RemoteList::Row RemoteList::ReadRow(int row) const {
    Row cells;
    for (int column = 0; column < ColumnCount(); ++column)
        cells.push_back(Cell(row, column));
    return cells;
}

std::vector<RemoteList::Row> RemoteList::ReadRows() const {
    std::vector<Row> rows;
    for (int row = 0; row < RowCount(); ++row)
        rows.push_back(ReadRow(row));
    return rows;
}

std::vector<std::string> RemoteList::SelectedNames() const {
    std::vector<std::string> names;
    for (int row = 0; row < RowCount(); ++row)
        if (SendMessageW(window_.Handle(), LVM_GETITEMSTATE, static_cast<WPARAM>(row),
                         LVIS_SELECTED) != 0)
            names.push_back(Cell(row, 0));
    return names;
}

int RemoteList::FindRow(const std::string& name) const {
    Row names;
    Row::iterator found;
    const bool isThere = PollUntil([&] {
        names = Names();
        found = std::find(names.begin(), names.end(), name);
        return found != names.end();
    });
    if (!isThere)
        throw std::runtime_error("No row " + name + " among" + InBrackets(names));
    return static_cast<int>(found - names.begin());
}

void RemoteList::ClickRow(const std::string& name) const {
    RealInput::Click(PointOfRow(name));
}

POINT RemoteList::PointOfRow(const std::string& name) const {
    const RECT bounds = BoundsOfRow(name, LVIR_LABEL);
    return window_.ToScreen({bounds.left + 8, (bounds.top + bounds.bottom) / 2});
}

RECT RemoteList::BoundsOfRow(const std::string& name, LONG part) const {
    const auto row = static_cast<WPARAM>(FindRow(name));
    SendMessageW(window_.Handle(), LVM_ENSUREVISIBLE, row, FALSE);
    const RemoteMemory memory(window_.Handle());
    RECT bounds{};
    bounds.left = part; // the message takes it there
    memory.Send(LVM_GETITEMRECT, row, bounds);
    return bounds;
}

COLORREF RemoteList::PictureColor(const std::string& name) const {
    const RECT bounds = BoundsOfRow(name, LVIR_ICON);
    return window_.ColorAt({(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2});
}

std::vector<std::string> RemoteList::Names() const {
    std::vector<std::string> names;
    for (int row = 0; row < RowCount(); ++row)
        names.push_back(Cell(row, 0));
    return names;
}
