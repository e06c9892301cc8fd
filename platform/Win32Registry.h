#pragma once

#include "common/ports/AnsiCodePage.h"
#include "common/ports/RegistryAccess.h"

// RegOpenKeyExA, RegQueryValueExA, RegCreateKeyExA, RegSetValueExA and RegCloseKey.
class Win32Registry : public RegistryAccess {
public:
    // The code page turns key paths and value names into bytes; it must outlive this object.
    explicit Win32Registry(const AnsiCodePage& codePage) : codePage_(codePage) {}

    [[nodiscard]] std::optional<RegistryValue> Query(std::uint32_t root, const std::string& keyPath,
                                                     const std::string& valueName,
                                                     std::uint32_t rights) override;

    bool Set(std::uint32_t root, const std::string& keyPath, const std::string& valueName,
             const RegistryValue& value, std::uint32_t rights) override;

private:
    const AnsiCodePage& codePage_;
};
