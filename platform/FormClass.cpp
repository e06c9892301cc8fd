#include "platform/FormClass.h"

FormClass::FormClass(const wchar_t* name, WNDPROC procedure) : name_(name) {
    const HINSTANCE module = GetModuleHandleW(nullptr);
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    if (GetClassInfoExW(module, name, &windowClass) != FALSE)
        return;
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = module;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
    windowClass.lpszClassName = name;
    RegisterClassExW(&windowClass);
}

FormClass::~FormClass() {
    UnregisterClassW(name_.c_str(), GetModuleHandleW(nullptr));
}
