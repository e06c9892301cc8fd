#pragma once

#include "common/ports/AnsiCodePage.h"

#include <memory>
#include <optional>

// A code page of Windows in which each byte is a character: 874 and 1250 to 1258; nothing: 1252.
// Null for any other number, and where iconv does not know it.
[[nodiscard]] std::unique_ptr<AnsiCodePage> LinuxCodePage(std::optional<unsigned> number);
