#include "standin/com/ObjectList.h"

#include "platform/Canvas.h"
#include "platform/DpiScale.h"
#include "platform/ExplorerTheme.h"
#include "platform/Utf16.h"
#include "shading/SurfaceShade.h"

#include <algorithm>
#include <utility>

namespace {

constexpr ControlKind kObjectList{"ListView", WC_LISTVIEWW, ""};

constexpr DWORD kListStyle = WS_VISIBLE | WS_TABSTOP | WS_BORDER | LVS_SHAREIMAGELISTS |
                             LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS;
constexpr DWORD kExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;

constexpr UINT kReportMessage = WM_APP + 10;

enum Column { NameColumn, KindColumn, ColorColumn };
constexpr int kKindWidth = 80;
constexpr int kColorWidth = 126;
constexpr int kChipSize = 14;
constexpr int kRowHeight = 20;

ColorNumber ColorOf(const SelectedItem& item) {
    const RedGreenBlue color = PlainColor(DisplayColorOf(item).values);
    return MakeColorNumber(color.red, color.green, color.blue);
}

std::string ColorText(const SelectedItem& item) {
    if (!CarriesColor(item.entity->Kind()))
        return {};
    const RedGreenBlue color = PlainColor(DisplayColorOf(item).values);
    return std::to_string(color.red) + ", " + std::to_string(color.green) + ", " +
           std::to_string(color.blue);
}

} // namespace

ObjectList::ObjectList(ControlHost& host, const ControlPlace& place)
    : Control(host, kObjectList, place, kListStyle) {
    UseExplorerTheme(Handle());
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kExtendedStyle, LPARAM{kExtendedStyle});
    AddColumn(NameColumn, L"Object");
    AddColumn(KindColumn, L"Kind");
    AddColumn(ColorColumn, L"Colour");
    SizeRows();
}

void ObjectList::AddColumn(int index, const wchar_t* caption) {
    std::wstring text = caption;
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = text.data();
    column.iSubItem = index;
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), &column);
}

void ObjectList::ApplyScale() {
    Control::ApplyScale();
    SizeRows();
    SizeColumns();
}

// A report's rows are as high as its pictures.
void ObjectList::SizeRows() {
    ImageListHandle spacer(ImageList_Create(1, Scale().FromDesign(kRowHeight), ILC_COLOR32, 1, 1));
    Send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(spacer.Get()));
    spacer_ = std::move(spacer);
}

void ObjectList::SizeColumns() {
    RECT area{};
    GetClientRect(Handle(), &area);
    const int kind = Scale().FromDesign(kKindWidth);
    const int color = Scale().FromDesign(kColorWidth);
    Send(LVM_SETCOLUMNWIDTH, NameColumn, LPARAM{std::max(WidthOf(area) - kind - color, kind)});
    Send(LVM_SETCOLUMNWIDTH, KindColumn, LPARAM{kind});
    Send(LVM_SETCOLUMNWIDTH, ColorColumn, LPARAM{color});
}

void ObjectList::SetRows(std::vector<SelectedItem> rows) {
    silent_ = true;
    SetSelected(-1, false);
    rows_ = std::move(rows);
    shown_.clear();
    Send(LVM_SETITEMCOUNT, rows_.size(), LPARAM{0});
    silent_ = false;
    SizeColumns(); // a scroll bar may have come or gone
    InvalidateRect(Handle(), nullptr, TRUE);
}

void ObjectList::SetSelected(int row, bool selected) const {
    LVITEMW state{};
    state.stateMask = LVIS_SELECTED;
    state.state = selected ? LVIS_SELECTED : 0;
    Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), &state);
}

void ObjectList::ShowSelection(const Selection& selection) {
    InvalidateRect(Handle(), nullptr, FALSE); // colors may have changed
    if (selection.Items() == shown_ || reportRequested_)
        return;
    shown_ = selection.Items();
    silent_ = true;
    SetSelected(-1, false);
    for (const SelectedItem& item : shown_) {
        const auto row = std::find(rows_.begin(), rows_.end(), item);
        if (row != rows_.end())
            SetSelected(static_cast<int>(row - rows_.begin()), true);
    }
    silent_ = false;
}

MessageResult ObjectList::OnNotify(NMHDR& header) {
    switch (header.code) {
    case LVN_GETDISPINFOW:
        FillItem(reinterpret_cast<NMLVDISPINFOW&>(header).item);
        return 0;
    case LVN_ITEMCHANGED:
    case LVN_ODSTATECHANGED:
        RequestReport();
        return 0;
    case NM_CUSTOMDRAW:
        return Draw(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
    default:
        return {};
    }
}

void ObjectList::FillItem(LVITEMW& item) const {
    if ((item.mask & LVIF_TEXT) == 0 || item.iItem < 0 ||
        static_cast<std::size_t>(item.iItem) >= rows_.size())
        return;
    const SelectedItem& row = rows_[static_cast<std::size_t>(item.iItem)];
    lstrcpynW(item.pszText, ToUtf16(CellText(row, item.iSubItem)).c_str(), item.cchTextMax);
}

std::string ObjectList::CellText(const SelectedItem& item, int column) const {
    if (column == NameColumn)
        return RowName(item);
    if (column == KindColumn)
        return EntityKindName(item.entity->Kind());
    return ColorText(item);
}

MessageResult ObjectList::Draw(const NMLVCUSTOMDRAW& draw) const {
    switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        return CDRF_NOTIFYPOSTPAINT;
    case CDDS_ITEMPOSTPAINT:
        DrawChip(draw);
        return CDRF_DODEFAULT;
    default:
        return {};
    }
}

// At the right end of the row, so that it covers no text.
void ObjectList::DrawChip(const NMLVCUSTOMDRAW& draw) const {
    if (draw.nmcd.dwItemSpec >= rows_.size())
        return;
    const SelectedItem& item = rows_[draw.nmcd.dwItemSpec];
    if (!CarriesColor(item.entity->Kind()))
        return;
    RECT cell{};
    cell.left = LVIR_BOUNDS;
    cell.top = ColorColumn;
    Send(LVM_GETSUBITEMRECT, draw.nmcd.dwItemSpec, &cell);
    const int size = Scale().FromDesign(kChipSize);
    const int top = (cell.top + cell.bottom - size) / 2;
    const int right = cell.right - Scale().FromDesign(6);
    const RECT chip{right - 2 * size, top, right, top + size};
    const Canvas canvas(draw.nmcd.hdc, Host().Font());
    canvas.Fill(chip, ColorOf(item));
    canvas.Frame(chip, GetSysColor(COLOR_3DSHADOW), 1);
}

// A click changes several rows; the selection is read once they all have changed.
void ObjectList::RequestReport() {
    if (!silent_ && !std::exchange(reportRequested_, true))
        PostMessageW(Handle(), kReportMessage, 0, 0);
}

MessageResult ObjectList::OnMessage(const WindowMessage& message) {
    if (message.id == kReportMessage) {
        Report();
        return 0;
    }
    if (message.id == WM_SIZE)
        SizeColumns();
    return {};
}

void ObjectList::Report() {
    reportRequested_ = false;
    std::vector<SelectedItem> selected;
    for (LRESULT row = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LPARAM{LVNI_SELECTED});
         row >= 0; row = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LPARAM{LVNI_SELECTED}))
        selected.push_back(rows_[static_cast<std::size_t>(row)]);
    const SelectionChange change = ChangeBetween(shown_, selected);
    shown_ = std::move(selected);
    Raise(onSelect, change);
}
