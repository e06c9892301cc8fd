#pragma once

#include <cstdint>
#include <optional>
#include <string>

// A 32-bit number as the registry keeps it: four bytes, the lowest first.
[[nodiscard]] std::string RegistryNumberToBytes(std::uint32_t number);

// Nothing unless there are exactly four bytes.
[[nodiscard]] std::optional<std::uint32_t> RegistryNumberFromBytes(const std::string& bytes);
