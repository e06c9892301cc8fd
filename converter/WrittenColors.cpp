#include "converter/WrittenColors.h"

#include "library/LibraryContent.h"
#include "library/LibraryFileFormat.h"

#include <utility>

namespace {

constexpr const char* kFirstGroup = "Colors"; // of colors without a group

// The library of the colors, made where a palette was read.
ColorLibrary& LibraryOf(ReadColors& colors, const WritingWishes& wishes) {
    if (!colors.library) {
        colors.library = std::make_unique<ColorLibrary>();
        colors.mainKey =
            AddPalette(*colors.library, colors.palette,
                       {.name = wishes.name, .firstGroup = kFirstGroup, .material = wishes.values});
    }
    colors.library->Tree().SetText(colors.mainKey, wishes.name);
    return *colors.library;
}

} // namespace

WrittenColors WriteAsPalette(ReadColors& colors, PaletteFormat format,
                             const WritingWishes& wishes) {
    colors.palette.name = wishes.name;
    if (format == PaletteFormat::Table)
        FillIn(colors.palette, wishes.values);
    PaletteWriting writing = WritePalette(colors.palette, format);
    return {std::move(writing.bytes), NotesOf(writing.losses)};
}

WrittenColors WriteAsLibrary(ReadColors& colors, const AnsiCodePage& codePage,
                             const WritingWishes& wishes, WorkProgress& progress) {
    ColorLibrary& library = LibraryOf(colors, wishes);
    const LibraryContent content =
        LibraryContent::Of(library, colors.mainKey,
                           std::make_shared<const ColorSnapshot>(library.Colors().Snapshot()));
    AnsiCodePage::Encoded encoded =
        content.Compose(codePage, NameSpelling::Readable, progress).encoded;
    SaveLosses losses =
        NamesLostBySaving(library, colors.mainKey, LibraryFileFormat::FieldSeparator(codePage));
    losses.characters = std::move(encoded.unstored);
    return {std::move(encoded.bytes), NotesOf(losses)};
}
