#pragma once

#include "palettes/PaletteFormat.h"

#include <optional>
#include <string>

// What kind of file the program reads or writes.
struct FileKind {
    std::optional<PaletteFormat> palette; // nothing: a color library

    bool operator==(const FileKind&) const = default;
};

// The kind that a file's ending asks for, in either letter case; nothing for any other ending.
[[nodiscard]] std::optional<FileKind> KindOfEnding(const std::string& path);

// Such as "color library (.tnt)".
[[nodiscard]] std::string NameOfKind(const FileKind& kind);
