#include "platform/ExplorerTheme.h"

#include "platform/SystemFunction.h"

#include <uxtheme.h>

void UseExplorerTheme(HWND window) noexcept {
    static const auto setTheme =
        SystemFunction<decltype(&SetWindowTheme)>(L"uxtheme.dll", "SetWindowTheme");
    if (setTheme != nullptr)
        setTheme(window, L"Explorer", nullptr);
}
