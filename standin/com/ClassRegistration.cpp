#include "standin/com/ClassRegistration.h"

#include "common/RuntimeError.h"

#include <array>
#include <objbase.h>

namespace {

// The user's own classes need no rights; Wine's look-up by name (CLSIDFromProgID) ignores them.
const std::array<ClassRegistration::Root, 2> kRoots{{
    {HKEY_CURRENT_USER, L"Software\\Classes\\"},
    {HKEY_CLASSES_ROOT, L""},
}};

// Tells a stand-in's class ids from all others.
constexpr const wchar_t* kDescription = L"SolidWorks stand-in";

std::wstring TextOf(const CLSID& classId) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(classId, text.data(), static_cast<int>(text.size()));
    return text.data();
}

std::wstring ClassKey(const CLSID& classId) {
    return L"CLSID\\" + TextOf(classId);
}

// The key is gone with the system's next start, also when nobody takes it away.
bool WriteText(HKEY root, const std::wstring& key, const std::wstring& text) {
    HKEY opened = nullptr;
    if (RegCreateKeyExW(root, key.c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_SET_VALUE, nullptr,
                        &opened, nullptr) != ERROR_SUCCESS)
        return false;
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    const LSTATUS result = RegSetValueExW(opened, nullptr, 0, REG_SZ,
                                          reinterpret_cast<const BYTE*>(text.c_str()), bytes);
    RegCloseKey(opened);
    return result == ERROR_SUCCESS;
}

std::wstring ReadText(HKEY root, const std::wstring& key) {
    std::array<wchar_t, 64> text{};
    DWORD bytes = sizeof text;
    const LSTATUS result =
        RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &bytes);
    return result == ERROR_SUCCESS ? text.data() : L"";
}

bool IsOfStandIn(const CLSID& classId) {
    return ReadText(HKEY_CLASSES_ROOT, ClassKey(classId)) == kDescription;
}

} // namespace

ClassRegistration::ClassRegistration(std::wstring className) : className_(std::move(className)) {
    CLSID existing{};
    const bool isRegistered = SUCCEEDED(CLSIDFromProgID(className_.c_str(), &existing));
    isOwn_ = !isRegistered || IsOfStandIn(existing);
    if (!isOwn_) {
        classId_ = existing;
        return;
    }
    if (isRegistered)
        Remove(existing); // a stand-in that was killed left it behind
    Register();
}

ClassRegistration::~ClassRegistration() {
    if (isOwn_)
        Remove(classId_);
}

void ClassRegistration::Register() {
    if (SUCCEEDED(CoCreateGuid(&classId_)))
        for (const Root& root : kRoots)
            if (WriteBelow(root) && Resolves())
                return;
    Remove(classId_);
    throw RuntimeError(ErrorNumber::Automation, "The class could not be registered");
}

// The class name only where it still stands for this class id.
void ClassRegistration::Remove(const CLSID& classId) const {
    for (const Root& root : kRoots) {
        const std::wstring nameKey = root.path + className_;
        if (ReadText(root.key, nameKey + L"\\CLSID") == TextOf(classId))
            RegDeleteTreeW(root.key, nameKey.c_str());
        RegDeleteTreeW(root.key, (root.path + ClassKey(classId)).c_str());
    }
}

bool ClassRegistration::WriteBelow(const Root& root) const {
    const std::wstring classKey = root.path + ClassKey(classId_);
    const std::wstring nameKey = root.path + className_;
    return WriteText(root.key, nameKey, kDescription) &&
           WriteText(root.key, nameKey + L"\\CLSID", TextOf(classId_)) &&
           WriteText(root.key, classKey, kDescription) &&
           WriteText(root.key, classKey + L"\\ProgID", className_);
}

bool ClassRegistration::Resolves() const {
    CLSID found{};
    return SUCCEEDED(CLSIDFromProgID(className_.c_str(), &found)) && found == classId_;
}
