#include "standin/com/CallList.h"

#include "platform/DpiScale.h"
#include "platform/ExplorerTheme.h"
#include "platform/Utf16.h"

#include <commctrl.h>

namespace {

constexpr ControlKind kCallList{"ListView", WC_LISTVIEWW, ""};

constexpr DWORD kListStyle = WS_VISIBLE | WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_OWNERDATA |
                             LVS_SINGLESEL | LVS_NOCOLUMNHEADER;
constexpr DWORD kExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;

} // namespace

CallList::CallList(ControlHost& host, const ControlPlace& place, const CallLog& log)
    : Control(host, kCallList, place, kListStyle), log_(log) {
    UseExplorerTheme(Handle());
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kExtendedStyle, LPARAM{kExtendedStyle});
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    Send(LVM_INSERTCOLUMNW, 0, &column);
}

void CallList::Refresh() {
    if (shownTotal_ == log_.Total())
        return;
    shownTotal_ = log_.Total();
    const std::size_t count = log_.Records().size();
    Send(LVM_SETITEMCOUNT, count, LPARAM{LVSICF_NOSCROLL});
    if (count > 0)
        Send(LVM_ENSUREVISIBLE, count - 1, LPARAM{FALSE});
    InvalidateRect(Handle(), nullptr, FALSE);
}

MessageResult CallList::OnNotify(NMHDR& header) {
    if (header.code != LVN_GETDISPINFOW)
        return {};
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(header).item;
    const auto row = static_cast<std::size_t>(item.iItem);
    if ((item.mask & LVIF_TEXT) != 0 && row < log_.Records().size())
        lstrcpynW(item.pszText, ToUtf16(ToText(log_.Records()[row])).c_str(), item.cchTextMax);
    return 0;
}

MessageResult CallList::OnMessage(const WindowMessage& message) {
    if (message.id == WM_SIZE)
        SizeColumn();
    return {};
}

void CallList::SizeColumn() {
    RECT area{};
    GetClientRect(Handle(), &area);
    Send(LVM_SETCOLUMNWIDTH, 0, LPARAM{WidthOf(area) - GetSystemMetrics(SM_CXVSCROLL)});
}
