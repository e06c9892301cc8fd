#include "library/LibraryReader.h"

#include "library/LibraryFileFormat.h"

#include <optional>

bool LibraryReader::Read(WorkProgress& progress) {
    if (!ReadHeader(progress))
        return false;
    const std::string separator = LibraryFileFormat::FieldSeparator(codePage_);
    std::int32_t lineNumber = 0;
    bool complete = true;
    while (complete) {
        const std::optional<std::string_view> line = lines_.Next();
        if (!line)
            break;
        complete = ReadRecord(*line, separator);
        progress.Reaches(++lineNumber);
    }
    return complete;
}

bool LibraryReader::ReadHeader(WorkProgress& progress) {
    using namespace LibraryFileFormat;
    const std::string_view line = lines_.Next().value_or("");
    const auto header = ParseHeader(WithoutFirstCharacter(line));
    if (!header)
        return false;
    NoteWhetherHeld(IsHeaderTakenWhole(line));
    progress.Starts(header->count);
    mainKey_ = library_.NewMainNode(header->name);
    library_.Tree().SetFile(mainKey_, fileName_);
    library_.Tree().SetSource(mainKey_, fileName_);
    return true;
}

bool LibraryReader::ReadRecord(std::string_view line, std::string_view separator) {
    using LibraryFileFormat::RecordKind;
    switch (LibraryFileFormat::KindOf(LibraryFileFormat::WithoutQuotes(line))) {
    case RecordKind::Color:
        return ReadColor(line, separator);
    case RecordKind::Group:
        return ReadGroup(line);
    default:
        NoteWhetherHeld(line.empty());
        return true;
    }
}

bool LibraryReader::ReadGroup(std::string_view line) {
    const auto group = LibraryFileFormat::ParseGroup(LibraryFileFormat::WithoutQuotes(line));
    if (!group)
        return false;
    NoteWhetherHeld(LibraryFileFormat::IsGroupTakenWhole(line));
    const std::string key = library_.NewGroupNode(mainKey_, group->name);
    groups_.Add(group->key, library_.Colors().NumberOfGroup(key));
    return true;
}

bool LibraryReader::ReadColor(std::string_view line, std::string_view separator) {
    using namespace LibraryFileFormat;
    ++colorNumber_;
    const auto color = ParseColor(WithoutQuotes(line), separator);
    if (!color)
        return false;
    const auto group = groups_.Find(color->groupKey);
    if (!group)
        return false;
    library_.Colors().Append(*group, colorNumber_, color->name, color->altName,
                             ValuesOf(*color, separator));
    NoteWhetherHeld(IsColorTakenWhole(line, *color, separator));
    return true;
}
