#include "platform/controls/ListView.h"

#include "platform/DpiScale.h"
#include "platform/ExplorerTheme.h"
#include "platform/Fonts.h"
#include "platform/Utf16.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr ControlKind kListView{"ListView", WC_LISTVIEWW, ""};

constexpr DWORD kListStyle = WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL |
                             LVS_EDITLABELS | LVS_SHOWSELALWAYS | LVS_AUTOARRANGE |
                             LVS_SHAREIMAGELISTS | WS_CLIPCHILDREN;

constexpr DWORD kExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;

constexpr int kLargeIcon = 32;
constexpr int kSmallIcon = 16;
constexpr LONG kCellMargin = 6; // pixels that the platform leaves before the text of a cell

constexpr UINT kSelectedAndFocused = LVIS_SELECTED | LVIS_FOCUSED;

} // namespace

ListView::ListView(ControlHost& host, const ControlPlace& place, const Images& images)
    : Control(host, kListView, place, kListStyle, WS_EX_CLIENTEDGE), images_(images),
      dpi_(host.Scale().Dpi()), hint_(host, *this) {
    UseExplorerTheme(Handle());
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kExtendedStyle, LPARAM{kExtendedStyle});
    ListView::ApplyScale();
    TipShowsCutText();
    hint_.onLink = [this](int line) { Raise(onHintLink, line); };
}

void ListView::ApplyScale() {
    Control::ApplyScale();
    images_.largeIcons.Fit(Scale().FromDesign(kLargeIcon));
    images_.smallIcons.Fit(Scale().FromDesign(kSmallIcon));
    Send(LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(images_.largeIcons.Handle()));
    Send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images_.smallIcons.Handle()));
    FitColumns();
    hint_.ApplyScale();
    ArrangeHint();
}

// Only the details know the widths of the columns; the other views wait until these are shown.
void ListView::FitColumns() {
    if (View() != LVS_REPORT)
        return;
    const int before = std::exchange(dpi_, Scale().Dpi());
    for (int column = 0; column < columns_ && before != dpi_; ++column) {
        const auto width = static_cast<int>(Send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
        Send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), MulDiv(width, dpi_, before));
    }
}

void ListView::PaintPictures(PicturePainter painter) {
    painter_ = std::move(painter);
    InvalidateRect(Handle(), nullptr, TRUE);
}

void ListView::ShowHint(const std::vector<ListHint::Line>& lines) {
    if (hint_.Show(lines))
        ArrangeHint();
}

void ListView::ArrangeHint() {
    hint_.Arrange(AreaOfRows());
}

RECT ListView::AreaOfRows() const {
    RECT area{};
    GetClientRect(Handle(), &area);
    RECT header{};
    if (View() == LVS_REPORT &&
        GetWindowRect(reinterpret_cast<HWND>(Send(LVM_GETHEADER)), &header) != FALSE)
        area.top += HeightOf(header);
    return area;
}

void ListView::PaintSelected(HDC device, const RECT& square) const {
    if (painter_ && selected_ >= 0)
        painter_({device, selected_, square, true});
}

LONG_PTR ListView::View() const noexcept {
    return GetWindowLongPtrW(Handle(), GWL_STYLE) & LONG_PTR{LVS_TYPEMASK};
}

void ListView::AddColumn(const std::string& caption, int width) {
    std::wstring wide = ToUtf16(caption);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = wide.data();
    column.cx = width;
    column.iSubItem = columns_;
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(columns_), &column);
    ++columns_;
}

void ListView::AddColumns(const std::vector<Column>& columns) {
    Send(WM_SETREDRAW, FALSE);
    for (const Column& column : columns)
        AddColumn(column.caption, column.width);
    Send(WM_SETREDRAW, TRUE);
    InvalidateRect(Handle(), nullptr, TRUE);
}

void ListView::SetColumnCaption(int column, const std::string& caption) {
    std::wstring wide = ToUtf16(caption);
    LVCOLUMNW change{};
    change.mask = LVCF_TEXT;
    change.pszText = wide.data();
    Send(LVM_SETCOLUMNW, static_cast<WPARAM>(column) - 1, &change);
}

void ListView::SetColumnWidth(int column, int width) {
    Send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column) - 1, LPARAM{width});
}

void ListView::AlignRight(int column) {
    LVCOLUMNW change{};
    change.mask = LVCF_FMT;
    change.fmt = LVCFMT_RIGHT;
    Send(LVM_SETCOLUMNW, static_cast<WPARAM>(column) - 1, &change);
}

void ListView::RemoveLastColumn() {
    --columns_;
    Send(LVM_DELETECOLUMN, static_cast<WPARAM>(columns_));
}

void ListView::MarkColumn(int column, bool descending) {
    const auto header = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
    for (int index = 0; index < columns_; ++index) {
        HDITEMW item{};
        item.mask = HDI_FORMAT;
        SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&item));
        item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        if (index == column - 1)
            item.fmt |= descending ? HDF_SORTDOWN : HDF_SORTUP;
        SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&item));
    }
}

void ListView::SetRowCount(int count) {
    Send(LVM_CANCELEDITLABEL);
    ShowSelection(-1);
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(count), LPARAM{0});
    Arrange();
}

void ListView::AddRowsTo(int count) {
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(count),
         LPARAM{LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL});
}

// Icons get their places, which not every version of the control does by itself; undrawn, for
// otherwise each row is measured to be painted at once.
void ListView::Arrange() {
    if (View() == LVS_ICON || View() == LVS_SMALLICON) {
        Send(WM_SETREDRAW, FALSE);
        Send(LVM_ARRANGE, LVA_DEFAULT);
        Send(WM_SETREDRAW, TRUE);
    }
    InvalidateRect(Handle(), nullptr, TRUE);
}

void ListView::SelectRow(int row) {
    ShowSelection(row);
}

void ListView::ShowSelection(int row) {
    const bool before = std::exchange(silent_, true);
    LVITEMW state{};
    state.stateMask = kSelectedAndFocused;
    Send(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), &state);
    if (row >= 0) {
        state.state = kSelectedAndFocused;
        Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), &state);
    }
    selected_ = row;
    silent_ = before;
}

void ListView::EnsureVisible(int row) {
    Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), LPARAM{FALSE});
}

int ListView::FirstRowInSight() const {
    return static_cast<int>(Send(LVM_GETTOPINDEX));
}

// A row that comes into sight from below stands at the end, from above at the start.
void ListView::ShowFromRow(int row) {
    if (View() == LVS_ICON || View() == LVS_SMALLICON)
        return;
    const int last = static_cast<int>(Send(LVM_GETITEMCOUNT)) - 1;
    EnsureVisible(last);
    EnsureVisible(std::min(row, last));
}

void ListView::EditLabel(int row) {
    Focus();
    Send(LVM_EDITLABELW, static_cast<WPARAM>(row));
}

// The box keeps its text when it loses the focus.
void ListView::FinishEdit() {
    if (Send(LVM_GETEDITCONTROL) != 0)
        Focus();
}

// The four modes are the control's styles 0 to 3, in another order.  The control may measure every
// row that it has at that moment: a sample gives the width of its cells as well.
void ListView::SetMode(int mode) {
    constexpr LONG_PTR kStyles[] = {LVS_ICON, LVS_SMALLICON, LVS_LIST, LVS_REPORT};
    constexpr LRESULT kSample = 200;
    const LRESULT rows = Send(LVM_GETITEMCOUNT);
    const int selected = selected_;
    ShowSelection(-1);
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(std::min(rows, kSample)), LPARAM{0});
    const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_STYLE);
    SetWindowLongPtrW(Handle(), GWL_STYLE, (style & ~LONG_PTR{LVS_TYPEMASK}) | kStyles[mode]);
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(rows), LPARAM{0});
    FitColumns();
    Arrange();
    ArrangeHint();
    ShowSelection(selected);
}

MessageResult ListView::OnNotify(NMHDR& header) {
    switch (header.code) {
    case LVN_GETDISPINFOW:
        FillItem(reinterpret_cast<NMLVDISPINFOW&>(header).item);
        return 0;
    case NM_CUSTOMDRAW:
        return FollowPainting(reinterpret_cast<const NMCUSTOMDRAW&>(header));
    case LVN_ODFINDITEMW:
        return FindText(reinterpret_cast<const NMLVFINDITEMW&>(header));
    case LVN_ITEMCHANGED:
        SelectionChanged(reinterpret_cast<const NMLISTVIEW&>(header));
        return 0;
    case LVN_KEYDOWN:
        if (reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey == VK_F2)
            Raise(onEditRequested);
        return 0;
    case LVN_BEGINLABELEDITW:
        return BeginLabelEdit(reinterpret_cast<const NMLVDISPINFOW&>(header).item.iItem) ? FALSE
                                                                                         : TRUE;
    case LVN_ENDLABELEDITW:
        EndLabelEdit(reinterpret_cast<const NMLVDISPINFOW&>(header));
        return TRUE;
    case LVN_BEGINDRAG:
        StartDrag(reinterpret_cast<const NMLISTVIEW&>(header));
        return 0;
    case NM_DBLCLK:
        if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0)
            Raise(onDoubleClick);
        return 0;
    case LVN_COLUMNCLICK:
        Raise(onColumnClick, reinterpret_cast<const NMLISTVIEW&>(header).iSubItem + 1);
        return 0;
    default:
        return {};
    }
}

// Typed letters ask for the start of a text, programs that read the screen also for a whole one.
int ListView::FindText(const NMLVFINDITEMW& search) const {
    const UINT flags = search.lvfi.flags;
    if ((flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || !findRow || !cellText)
        return -1;
    const int start = std::max(search.iStart, 0); // -1: from the first row
    if ((flags & LVFI_PARTIAL) != 0)
        return findRow(ToUtf8(search.lvfi.psz), start);
    const auto rows = static_cast<int>(SendMessageW(Handle(), LVM_GETITEMCOUNT, 0, 0));
    for (int step = 0; step < rows; ++step) {
        const int row = (start + step) % rows;
        if (lstrcmpiW(ToUtf16(cellText(row, 1)).c_str(), search.lvfi.psz) == 0)
            return row;
    }
    return -1;
}

void ListView::FillItem(LVITEMW& item) const {
    if ((item.mask & LVIF_TEXT) != 0 && item.pszText != nullptr && item.cchTextMax > 0) {
        const std::string text = cellText ? cellText(item.iItem, item.iSubItem + 1) : "";
        lstrcpynW(item.pszText, ToUtf16(text).c_str(), item.cchTextMax);
    }
    if ((item.mask & LVIF_IMAGE) != 0)
        item.iImage = item.iSubItem == 0 ? ImageOfRows() : -1;
}

// A picture of a row's own has the place of one that the list of pictures does not hold, so that
// the control paints none.
int ListView::ImageOfRows() const {
    const IconList& shown = ShownImages();
    return painter_ ? ImageList_GetImageCount(shown.Handle()) : shown.IndexOf(images_.key);
}

// The picture comes last: the control would blend that of a selected row with the selection.
MessageResult ListView::FollowPainting(const NMCUSTOMDRAW& stage) const {
    if (!painter_)
        return {};
    switch (stage.dwDrawStage) {
    case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        return CDRF_NOTIFYPOSTPAINT;
    case CDDS_ITEMPOSTPAINT:
        PaintPicture(stage.hdc, static_cast<int>(stage.dwItemSpec));
        return CDRF_DODEFAULT;
    default:
        return CDRF_DODEFAULT;
    }
}

// A column that is narrower than the picture cuts it off.
void ListView::PaintPicture(HDC device, int row) const {
    RECT place{LVIR_ICON, 0, 0, 0};
    if (Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), &place) == 0)
        return;
    const auto width = static_cast<LONG>(View() == LVS_REPORT ? Send(LVM_GETCOLUMNWIDTH) : 0);
    if (View() != LVS_REPORT || width > 2 * Scale().FromDesign(kSmallIcon)) {
        PaintPictureIn(place, device, row);
        return;
    }
    RECT bounds{LVIR_BOUNDS, 0, 0, 0};
    Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), &bounds);
    const int before = SaveDC(device);
    IntersectClipRect(device, bounds.left, bounds.top, bounds.left + width, bounds.bottom);
    PaintPictureIn(place, device, row);
    RestoreDC(device, before);
}

// In the middle of the place, which may be larger.
void ListView::PaintPictureIn(const RECT& place, HDC device, int row) const {
    const bool isLarge = View() == LVS_ICON;
    const int size = Scale().FromDesign(isLarge ? kLargeIcon : kSmallIcon);
    const LONG left = (place.left + place.right - size) / 2;
    const LONG top = (place.top + place.bottom - size) / 2;
    painter_({device, row, {left, top, left + size, top + size}, isLarge});
}

const IconList& ListView::ShownImages() const {
    return View() == LVS_ICON ? images_.largeIcons : images_.smallIcons;
}

void ListView::SelectionChanged(const NMLISTVIEW& change) {
    const bool selected = (change.uNewState & LVIS_SELECTED) != 0;
    // A label edit takes the row's selection away and gives it back.
    if (silent_ || !selected || change.iItem < 0 || change.iItem == selected_)
        return;
    selected_ = change.iItem;
    Raise(onClick, selected_);
}

// False: no edit.
bool ListView::BeginLabelEdit(int row) {
    if (mayEdit && !mayEdit())
        return false;
    label_.Begin(reinterpret_cast<HWND>(Send(LVM_GETEDITCONTROL)),
                 cellText ? cellText(row, 1) : "");
    return true;
}

// Without a text the label is unchanged, unless the box is empty.
void ListView::EndLabelEdit(const NMLVDISPINFOW& info) {
    const std::optional<std::string> text = label_.End();
    if (!text || (info.item.pszText == nullptr && !text->empty()))
        return;
    const int row = info.item.iItem;
    Raise(onLabelEdited, row, *text);
    Send(LVM_REDRAWITEMS, static_cast<WPARAM>(row), row);
}

MessageResult ListView::OnMessage(const WindowMessage& message) {
    if (const MessageResult result = drag_.OnMessage(message))
        return result;
    if (const MessageResult result = hint_.OnMessage(message))
        return result;
    switch (message.id) {
    case WM_SIZE: {
        const LRESULT result = Default(message);
        ArrangeHint();
        return result;
    }
    case WM_MOUSEMOVE: {
        const Cell cell = CellAt(PointOf(message));
        TipIsFor(MAKELPARAM(cell.row, cell.column));
        return {};
    }
    case WM_LBUTTONDOWN:
        Raise(onPress);
        return PressLeft(message);
    case WM_LBUTTONDBLCLK: // no command of its own
        Raise(onPress);
        return RowAt(PointOf(message)) < 0 ? 0 : KeepSelection(message);
    case WM_RBUTTONDOWN:
        Raise(onPress);
        PressRight(message);
        return 0;
    case WM_KEYDOWN:
        return KeepSelection(message);
    case LVM_CANCELEDITLABEL:
        label_.GiveUp();
        return {};
    case WM_CONTEXTMENU:
        if (message.lParam == -1) // the keyboard's menu key
            OpenContextMenu(message);
        else if (hint_.IsLabel(reinterpret_cast<HWND>(message.wParam)))
            Raise(onContextMenu, PointOf(message)); // of the screen
        return 0;
    default:
        return {};
    }
}

// A click beside the rows and Ctrl would leave the list without a selected row; the program always
// keeps the last one.
LRESULT ListView::KeepSelection(const WindowMessage& message) {
    const LRESULT result = Default(message);
    const auto selected = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LPARAM{LVNI_SELECTED});
    if (selected < 0 && selected_ >= 0)
        ShowSelection(selected_);
    return result;
}

MessageResult ListView::PressLeft(const WindowMessage& message) {
    const int row = RowAt(PointOf(message));
    if (row < 0) {
        Focus();
        return 0;
    }
    // A click on the selected row changes nothing in the control, but it is a click.
    const bool again = row == selected_;
    const LRESULT result = KeepSelection(message);
    if (again)
        Raise(onClick, row);
    return result;
}

void ListView::PressRight(const WindowMessage& message) {
    Focus();
    const int row = RowAt(PointOf(message));
    if (row >= 0 && row != selected_) {
        ShowSelection(row);
        Raise(onClick, row);
    }
    OpenContextMenu(message);
}

void ListView::StartDrag(const NMLISTVIEW& start) {
    if (start.iItem < 0)
        return;
    if (start.iItem != selected_) {
        ShowSelection(start.iItem);
        Raise(onClick, start.iItem);
    }
    POINT at = start.ptAction;
    ClientToScreen(Handle(), &at);
    if (onDragStart && onDragStart(at))
        drag_.Begin(at);
}

int ListView::RowAt(POINT point) const {
    LVHITTESTINFO hit{};
    hit.pt = point;
    return static_cast<int>(Send(LVM_HITTEST, 0, &hit));
}

ListView::Cell ListView::CellAt(POINT point) const {
    LVHITTESTINFO hit{};
    hit.pt = point;
    if (View() != LVS_REPORT)
        return {static_cast<int>(Send(LVM_HITTEST, 0, &hit)), 1};
    Send(LVM_SUBITEMHITTEST, 0, &hit);
    return {hit.iItem, hit.iSubItem + 1};
}

// Over a row only its name, when it is cut off: anything else would hide what is to be clicked, as
// it would beside the links of a hint.
std::string ListView::TipText() const {
    const Cell cell = CellAt(Pointer());
    if (cell.row < 0)
        return hint_.IsShown() ? std::string() : Control::TipText();
    const std::string name = cell.column == 1 && cellText ? cellText(cell.row, 1) : std::string();
    return IsNameCut(cell.row, name) ? name : std::string();
}

bool ListView::IsNameCut(int row, const std::string& name) const {
    RECT area{};
    RECT place{LVIR_LABEL, 0, 0, 0};
    GetClientRect(Handle(), &area);
    Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), &place);
    const SIZE text = MeasureText(Host().Font(), ToUtf16(name));
    if ((GetWindowLongPtrW(Handle(), GWL_STYLE) & LVS_TYPEMASK) == LVS_REPORT)
        return place.left < area.left ||
               place.left + kCellMargin + text.cx > std::min(place.right, area.right);
    const LONG lines = std::max(HeightOf(place) / std::max(text.cy, LONG{1}), LONG{1});
    return text.cx > lines * WidthOf(place) || place.left < area.left || place.right > area.right;
}

void ListView::OpenContextMenu(const WindowMessage& message) {
    POINT at = PointOf(message);
    if (message.id == WM_CONTEXTMENU) {
        RECT bounds{LVIR_LABEL, 0, 0, 0};
        at = selected_ >= 0 && Send(LVM_GETITEMRECT, static_cast<WPARAM>(selected_), &bounds) != 0
                 ? POINT{bounds.left, bounds.bottom}
                 : POINT{};
    }
    ClientToScreen(message.window, &at);
    Raise(onContextMenu, at);
}
