#pragma once

#include "common/ports/FormWindow.h"

// Places a form above all windows that are not topmost, or back among them.
inline void SetFormOnTop(FormWindow& form, bool onTop) {
    form.SetTopmost(onTop);
}
