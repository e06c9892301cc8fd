#include "converter/FileKind.h"

#include "common/FileNames.h"

std::optional<FileKind> KindOfEnding(const std::string& path) {
    if (HasExtension(path, ".tnt"))
        return FileKind{};
    const std::optional<PaletteFormat> palette = FormatOfEnding(path);
    return palette ? std::optional(FileKind{palette}) : std::nullopt;
}

std::string NameOfKind(const FileKind& kind) {
    if (!kind.palette)
        return "color library (.tnt)";
    switch (*kind.palette) {
    case PaletteFormat::Gimp:
        return "GIMP palette (.gpl)";
    case PaletteFormat::SwatchExchange:
        return "Adobe swatch exchange (.ase)";
    case PaletteFormat::AdobeColor:
        return "Adobe color (.aco)";
    case PaletteFormat::Table:
        break;
    }
    return "table (.csv, .txt)";
}
