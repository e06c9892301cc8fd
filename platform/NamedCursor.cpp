#include "platform/NamedCursor.h"

#include "platform/IconList.h"

CursorHandle LoadNamedCursor(const std::string& icon, int size) {
    const IconHandle loaded = LoadNamedIcon(icon, size);
    ICONINFO parts{};
    if (!loaded || GetIconInfo(loaded.Get(), &parts) == FALSE)
        return {};
    const BitmapHandle mask(parts.hbmMask);
    const BitmapHandle color(parts.hbmColor);
    parts.fIcon = FALSE;
    parts.xHotspot = static_cast<DWORD>(size / 16);
    parts.yHotspot = parts.xHotspot;
    return CursorHandle(CreateIconIndirect(&parts));
}
