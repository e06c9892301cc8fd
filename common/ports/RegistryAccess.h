#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace RegistryRoot {
inline constexpr std::uint32_t CurrentUser = 0x80000001U;
inline constexpr std::uint32_t LocalMachine = 0x80000002U;
} // namespace RegistryRoot

namespace RegistryType {
inline constexpr std::uint32_t String = 1; // REG_SZ
inline constexpr std::uint32_t Binary = 3; // REG_BINARY
inline constexpr std::uint32_t DWord = 4;  // REG_DWORD
} // namespace RegistryType

namespace RegistryRights {
inline constexpr std::uint32_t QueryValue = 0x1;
inline constexpr std::uint32_t Read = 0x20019;
inline constexpr std::uint32_t Write = 0x20006;
inline constexpr std::uint32_t ReadWrite = 0x2001F;
} // namespace RegistryRights

struct RegistryValue {
    std::uint32_t type = 0;
    std::string bytes; // as stored; strings in the ANSI code page, with their NUL if stored so
};

// One value of the registry through the platform's ANSI registry functions.  Key paths and value
// names are UTF-8.
class RegistryAccess {
public:
    virtual ~RegistryAccess() = default;

    // Opens the key with the rights, queries type and size, then the content.  Nothing on any
    // error.
    [[nodiscard]] virtual std::optional<RegistryValue> Query(std::uint32_t root,
                                                             const std::string& keyPath,
                                                             const std::string& valueName,
                                                             std::uint32_t rights) = 0;

    // Creates or opens the key with the rights and writes the value.  False on any error.
    virtual bool Set(std::uint32_t root, const std::string& keyPath, const std::string& valueName,
                     const RegistryValue& value, std::uint32_t rights) = 0;
};
