#include "tests/e2e/RemoteToolbar.h"

#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteMemory.h"

#include <commctrl.h>
#include <stdexcept>

RECT RemoteToolbar::BoundsOf(int command) const {
    const RemoteMemory memory(window_.Handle());
    RECT bounds{};
    if (memory.Send(TB_GETRECT, static_cast<WPARAM>(command), bounds) == 0 ||
        bounds.right == bounds.left)
        throw std::runtime_error("No toolbar button " + std::to_string(command));
    return bounds;
}

void RemoteToolbar::Click(int command) const {
    const RECT bounds = BoundsOf(command);
    RealInput::Click(window_.ToScreen({bounds.left + 8, (bounds.top + bounds.bottom) / 2}));
}

void RemoteToolbar::ClickArrow(int command) const {
    const RECT bounds = BoundsOf(command);
    RealInput::Click(window_.ToScreen({bounds.right - 4, (bounds.top + bounds.bottom) / 2}));
}

bool RemoteToolbar::IsShown(int command) const {
    return SendMessageW(window_.Handle(), TB_ISBUTTONHIDDEN, static_cast<WPARAM>(command), 0) == 0;
}

bool RemoteToolbar::IsPressed(int command) const {
    return SendMessageW(window_.Handle(), TB_ISBUTTONCHECKED, static_cast<WPARAM>(command), 0) != 0;
}
