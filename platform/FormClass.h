#pragma once

#include <string>
#include <windows.h>

// The window class of a form, known to the system while a form of it lives.
class FormClass {
public:
    FormClass(const wchar_t* name, WNDPROC procedure);
    // Another form of the same class keeps it.
    ~FormClass();
    FormClass(const FormClass&) = delete;
    FormClass& operator=(const FormClass&) = delete;

private:
    std::wstring name_;
};
