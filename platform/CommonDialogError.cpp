#include "platform/CommonDialogError.h"

#include "common/RuntimeError.h"

#include <windows.h>
#include <commdlg.h>

void ThrowUnlessCancelled() {
    const DWORD error = CommDlgExtendedError();
    if (error != 0)
        throw RuntimeError(static_cast<int>(error), ErrorTexts::DialogNotShown,
                           {std::to_string(error)});
}
