#include "tests/platform/ScratchClass.h"

#include "platform/Utf16.h"

#include <objbase.h>

ScratchClass::ScratchClass() : name_(L"TntTest.Object" + std::to_wstring(GetCurrentProcessId())) {
    CoCreateGuid(&id_);
    wchar_t text[64] = {};
    const int length = StringFromGUID2(id_, text, 64);
    isRegistered_ =
        RegSetKeyValueW(HKEY_CLASSES_ROOT, (name_ + L"\\CLSID").c_str(), nullptr, REG_SZ, text,
                        static_cast<DWORD>(length) * sizeof(wchar_t)) == ERROR_SUCCESS;
}

ScratchClass::~ScratchClass() {
    RegDeleteTreeW(HKEY_CLASSES_ROOT, name_.c_str());
}

std::string ScratchClass::Name() const {
    return ToUtf8(name_);
}
