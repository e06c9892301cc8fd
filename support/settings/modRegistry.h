#pragma once

#include "common/ports/AnsiCodePage.h"
#include "common/ports/RegistryAccess.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// A registry value: empty, a string (REG_SZ), bytes (REG_BINARY) or a number (REG_DWORD).
using RegistryVariant =
    std::variant<std::monostate, std::string, std::vector<std::uint8_t>, std::int32_t>;

// General access to the registry.  No error is ever reported.
class modRegistry {
public:
    modRegistry(RegistryAccess& registry, const AnsiCodePage& codePage)
        : registry_(registry), codePage_(codePage) {}

    // Empty when the key or value is missing, on any error and for every other type.
    [[nodiscard]] RegistryVariant RegistryGetKeyValue(std::uint32_t root,
                                                      const std::string& keyPath,
                                                      const std::string& valueName) const;

    // Creates the key when it does not exist.  type: RegistryType.  A number is written as its
    // decimal text under the type of strings; a value that does not convert is not written.
    void RegistrySetKeyValue(std::uint32_t root, const std::string& keyPath,
                             const std::string& valueName, const RegistryVariant& value,
                             std::uint32_t type) const;

    // A string value opened with the right to query alone; empty for anything else.
    [[nodiscard]] std::string ReadString(std::uint32_t root, const std::string& keyPath,
                                         const std::string& valueName) const;

    // Writes a string value with the right to write alone.
    void WriteString(std::uint32_t root, const std::string& keyPath, const std::string& valueName,
                     const std::string& text) const;

private:
    [[nodiscard]] std::string TextOf(const RegistryValue& value) const;
    [[nodiscard]] RegistryValue StringValue(const std::string& text) const;
    [[nodiscard]] std::optional<RegistryValue> Stored(const RegistryVariant& value,
                                                      std::uint32_t type) const;

    RegistryAccess& registry_;
    const AnsiCodePage& codePage_;
};
