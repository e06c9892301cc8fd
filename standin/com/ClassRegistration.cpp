#include "standin/com/ClassRegistration.h"

#include "common/RuntimeError.h"

#include <array>
#include <objbase.h>

namespace {

// The class of the stand-in itself.
constexpr CLSID kStandInClass{
    0xe852dc55, 0x87b3, 0x400a, {0x92, 0x22, 0x72, 0x1d, 0xbc, 0xc0, 0x9b, 0x6d}};

// The user's own classes need no rights; not every system looks there.
const std::array<ClassRegistration::Root, 2> kRoots{{
    {HKEY_CURRENT_USER, L"Software\\Classes\\"},
    {HKEY_CLASSES_ROOT, L""},
}};

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

std::wstring ReadText(HKEY root, const std::wstring& key) {
    std::array<wchar_t, 64> text{};
    DWORD bytes = sizeof text;
    const LSTATUS result =
        RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &bytes);
    return result == ERROR_SUCCESS ? text.data() : L"";
}

} // namespace

ClassRegistration::ClassRegistration(std::wstring className)
    : className_(std::move(className)), classId_(kStandInClass) {
    CLSID existing{};
    const bool registered = SUCCEEDED(CLSIDFromProgID(className_.c_str(), &existing));
    isOwn_ = !registered || existing == kStandInClass;
    if (!isOwn_)
        classId_ = existing;
    else
        Register();
}

ClassRegistration::~ClassRegistration() {
    if (isOwn_)
        Remove();
}

// Only what points to the stand-in.
void ClassRegistration::Remove() const {
    for (const Root& root : kRoots) {
        const std::wstring nameKey = root.path + className_;
        if (ReadText(root.key, nameKey + L"\\CLSID") == TextOf(classId_))
            RegDeleteTreeW(root.key, nameKey.c_str());
        RegDeleteTreeW(root.key, (root.path + L"CLSID\\" + TextOf(classId_)).c_str());
    }
}

void ClassRegistration::Register() {
    Remove(); // what a stand-in that was killed left behind
    for (const Root& root : kRoots)
        if (WriteBelow(root) && Resolves())
            return;
    Remove();
    throw RuntimeError(ErrorNumber::Automation, "The class could not be registered");
}

bool ClassRegistration::WriteBelow(const Root& root) const {
    const std::wstring classId = TextOf(classId_);
    const std::wstring classKey = root.path + L"CLSID\\" + classId;
    const std::wstring nameKey = root.path + className_;
    return WriteText(root.key, nameKey, kDescription) &&
           WriteText(root.key, nameKey + L"\\CLSID", classId) &&
           WriteText(root.key, classKey, kDescription) &&
           WriteText(root.key, classKey + L"\\ProgID", className_);
}

bool ClassRegistration::Resolves() const {
    CLSID found{};
    return SUCCEEDED(CLSIDFromProgID(className_.c_str(), &found)) && found == classId_;
}
