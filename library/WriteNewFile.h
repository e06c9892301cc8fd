#pragma once

#include "common/ports/Files.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

// The paths that a new file may have, by a number from 1: the first one that is free is taken.
using PathChoices = std::function<std::string(int)>;

// Writes a content, down to the medium, to a file of its own; a file that is there already is never
// touched.  Gives the path; nothing when the content could not be written, and no file is left
// then.
[[nodiscard]] std::optional<std::string> WriteNewFile(Files& files, const PathChoices& choices,
                                                      std::string_view content);
