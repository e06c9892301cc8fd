#include "platform/Win32Registry.h"

#include "platform/RegistryValueReader.h"
#include "platform/UniqueHandle.h"

#include <windows.h>

namespace {

struct RegistryKeyTraits {
    using Handle = HKEY;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle key) noexcept { return RegCloseKey(key) == ERROR_SUCCESS; }
};
using RegistryKey = UniqueHandle<RegistryKeyTraits>;

// The predefined handles are sign-extended numbers.
HKEY RootHandle(std::uint32_t root) noexcept {
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(root)));
}

} // namespace

std::optional<RegistryValue> Win32Registry::Query(std::uint32_t root, const std::string& keyPath,
                                                  const std::string& valueName,
                                                  std::uint32_t rights) {
    RegistryKey key;
    const std::string path = codePage_.Encode(keyPath).bytes;
    if (RegOpenKeyExA(RootHandle(root), path.c_str(), 0, rights, key.Receive()) != ERROR_SUCCESS)
        return std::nullopt;
    const std::string name = codePage_.Encode(valueName).bytes;
    return ReadRegistryValue([&](DWORD* type, BYTE* content, DWORD* size) {
        return RegQueryValueExA(key.Get(), name.c_str(), nullptr, type, content, size);
    });
}

bool Win32Registry::Set(std::uint32_t root, const std::string& keyPath,
                        const std::string& valueName, const RegistryValue& value,
                        std::uint32_t rights) {
    RegistryKey key;
    const std::string path = codePage_.Encode(keyPath).bytes;
    if (RegCreateKeyExA(RootHandle(root), path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, rights,
                        nullptr, key.Receive(), nullptr) != ERROR_SUCCESS)
        return false;
    const std::string name = codePage_.Encode(valueName).bytes;
    return RegSetValueExA(key.Get(), name.c_str(), 0, value.type,
                          reinterpret_cast<const BYTE*>(value.bytes.data()),
                          static_cast<DWORD>(value.bytes.size())) == ERROR_SUCCESS;
}
