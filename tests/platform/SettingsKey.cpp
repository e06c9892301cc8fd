#include "tests/platform/SettingsKey.h"

#include "common/ProgramNames.h"
#include "platform/Utf16.h"
#include "platform/UniqueHandle.h"

#include <algorithm>
#include <array>
#include <windows.h>

namespace {

struct KeyTraits {
    using Handle = HKEY;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle key) noexcept { return RegCloseKey(key) == ERROR_SUCCESS; }
};
using Key = UniqueHandle<KeyTraits>;

constexpr const char* kPutAside = "SOFTWARE\\TNT4SWX test, put aside";

Key Create(const std::string& path) {
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_CURRENT_USER, ToUtf16(path).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                    nullptr, &key, nullptr);
    return Key(key);
}

void Move(const std::string& from, const std::string& to) {
    RegDeleteTreeW(HKEY_CURRENT_USER, ToUtf16(to).c_str());
    RegCopyTreeW(HKEY_CURRENT_USER, ToUtf16(from).c_str(), Create(to).Get());
    RegDeleteTreeW(HKEY_CURRENT_USER, ToUtf16(from).c_str());
}

void Set(const std::string& path, const std::string& name, DWORD type, const void* bytes,
         std::size_t size) {
    RegSetValueExW(Create(path).Get(), ToUtf16(name).c_str(), 0, type,
                   static_cast<const BYTE*>(bytes), static_cast<DWORD>(size));
}

void AddNames(HKEY key, const std::string& prefix, std::vector<std::string>& names) {
    std::array<wchar_t, 256> name{};
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(name.size());
        if (RegEnumValueW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            return;
        names.push_back(prefix + ToUtf8(std::wstring(name.data(), length)));
    }
}

} // namespace

SettingsKey::SettingsKey() {
    Move(ProgramNames::RegistryPath, kPutAside);
}

SettingsKey::~SettingsKey() {
    Move(kPutAside, ProgramNames::RegistryPath);
}

void SettingsKey::SetText(const std::string& subKey, const std::string& name,
                          const std::string& text) const {
    const std::string path = ProgramNames::RegistryPath;
    const std::wstring wide = ToUtf16(text);
    Set(subKey.empty() ? path : path + "\\" + subKey, name, REG_SZ, wide.c_str(),
        (wide.size() + 1) * sizeof(wchar_t));
}

void SettingsKey::SetBinary(const std::string& name) const {
    const std::array<BYTE, 3> bytes{0xFF, 0, 0x80};
    Set(ProgramNames::RegistryPath, name, REG_BINARY, bytes.data(), bytes.size());
}

std::vector<std::string> SettingsKey::Names() const {
    const std::string path = ProgramNames::RegistryPath;
    std::vector<std::string> names;
    AddNames(Create(path).Get(), "", names);
    AddNames(Create(path + "\\" + ProgramNames::FormPositionsKey).Get(),
             std::string(ProgramNames::FormPositionsKey) + "|", names);
    std::sort(names.begin(), names.end());
    return names;
}
