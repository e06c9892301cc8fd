#include "standin/com/ClassRegistration.h"

#include "common/RuntimeError.h"

#include <array>
#include <objbase.h>

namespace {

// The class of the stand-in itself.
constexpr CLSID kStandInClass{
    0xe852dc55, 0x87b3, 0x400a, {0x92, 0x22, 0x72, 0x1d, 0xbc, 0xc0, 0x9b, 0x6d}};

constexpr const wchar_t* kDescription = L"SolidWorks stand-in";

std::wstring TextOf(const CLSID& classId) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(classId, text.data(), static_cast<int>(text.size()));
    return text.data();
}

bool WriteText(HKEY root, const std::wstring& key, const std::wstring& text) {
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    return RegSetKeyValueW(root, key.c_str(), nullptr, REG_SZ, text.c_str(), bytes) ==
           ERROR_SUCCESS;
}

} // namespace

ClassRegistration::ClassRegistration(std::wstring className)
    : className_(std::move(className)), classId_(kStandInClass) {
    CLSID existing{};
    const bool registered = SUCCEEDED(CLSIDFromProgID(className_.c_str(), &existing));
    // What a stand-in that was killed left behind is written anew and taken away at the end.
    if (registered && existing != kStandInClass)
        classId_ = existing;
    else
        Register();
}

ClassRegistration::~ClassRegistration() {
    for (const Place& place : written_)
        RegDeleteTreeW(place.root, place.path.c_str());
}

// The user's own classes need no rights; not every system looks there.
void ClassRegistration::Register() {
    if (WriteBelow(HKEY_CURRENT_USER, L"Software\\Classes\\") && Resolves())
        return;
    if (!WriteBelow(HKEY_CLASSES_ROOT, L"") || !Resolves())
        throw RuntimeError(ErrorNumber::Automation, "The class could not be registered");
}

bool ClassRegistration::WriteBelow(HKEY root, const std::wstring& path) {
    const std::wstring classId = TextOf(classId_);
    const std::wstring classKey = path + L"CLSID\\" + classId;
    const std::wstring nameKey = path + className_;
    written_.push_back({root, nameKey});
    written_.push_back({root, classKey});
    return WriteText(root, nameKey, kDescription) &&
           WriteText(root, nameKey + L"\\CLSID", classId) &&
           WriteText(root, classKey, kDescription) &&
           WriteText(root, classKey + L"\\ProgID", className_);
}

bool ClassRegistration::Resolves() const {
    CLSID found{};
    return SUCCEEDED(CLSIDFromProgID(className_.c_str(), &found)) && found == classId_;
}
