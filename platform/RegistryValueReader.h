#pragma once

#include "common/ports/RegistryAccess.h"

#include <functional>
#include <optional>
#include <windows.h>

// One query of a value, as RegQueryValueExA makes it: type, buffer (null: only the size is asked)
// and size in bytes, which comes back as the size that is needed.
using ValueQuery = std::function<LSTATUS(DWORD* type, BYTE* content, DWORD* size)>;

// Asks type and size first, then the content; asks again when the value grew in between.  Nothing
// on an error, for a value of more than 1 MiB and for one that keeps growing.
[[nodiscard]] std::optional<RegistryValue> ReadRegistryValue(const ValueQuery& query);
