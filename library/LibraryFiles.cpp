#include "library/LibraryFiles.h"

#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "common/ShownProgress.h"
#include "common/Text.h"
#include "library/LibraryFileFormat.h"
#include "library/SafeFileWriter.h"

bool LibraryFiles::FileReadColorValues(const std::string& fileName) {
    if (fileName.empty() || !ports_.files.Exists(fileName))
        return false;
    const std::optional<std::string> bytes = ports_.files.ReadWhole(fileName);
    if (!bytes)
        throw RuntimeError(ErrorNumber::PermissionDenied, "The file cannot be read: " + fileName);
    bool complete = false;
    try {
        complete = ReadContent(*bytes, fileName);
    } catch (const RuntimeError&) {
        host_->ShowColorNodes({}, {});
        throw;
    }
    return complete;
}

bool LibraryFiles::ReadContent(std::string_view bytes, const std::string& fileName) {
    using namespace LibraryFileFormat;
    DecodedLines lines(bytes, ports_.codePage);
    const auto header = ParseHeader(WithoutFirstCharacter(lines.Next().value_or("")));
    if (!header)
        return RefuseInvalidFile(fileName);
    bool complete = false;
    {
        const ShownProgress progress(ports_.progress,
                                     ports_.texts.GetInfoText(InfoTextNumber::ReadingLibrary),
                                     header->count);
        library_.NewMainNode(header->name);
        const std::string mainKey = library_.Tree().Selected();
        library_.Tree().SetTag(mainKey, fileName);
        complete = ReadRecords(lines, mainKey);
    }
    if (!complete)
        RefuseInvalidFile(fileName);
    host_->ShowColorNodes({}, {});
    return complete;
}

bool LibraryFiles::ReadRecords(DecodedLines& lines, const std::string& mainKey) {
    const std::string separator = LibraryFileFormat::FieldSeparator(ports_.codePage);
    SavedGroups groups;
    // One counter for the whole file, on purpose: colour keys are unique without a look-up.
    std::uint32_t colorNumber = 0;
    std::int32_t lineNumber = 0;
    bool complete = true;
    while (complete) {
        const std::optional<std::string_view> line = lines.Next();
        if (!line)
            break;
        const std::string_view record = LibraryFileFormat::WithoutQuotes(*line);
        if (record.starts_with("G#"))
            complete = ReadGroup(record, mainKey, groups);
        else if (record.starts_with("E#"))
            complete = ReadColor(record, separator, groups, ++colorNumber);
        ports_.progress.SetProgress(++lineNumber);
    }
    return complete;
}

bool LibraryFiles::ReadGroup(std::string_view record, const std::string& mainKey,
                             SavedGroups& groups) {
    const auto group = LibraryFileFormat::ParseGroup(record);
    if (!group)
        return false;
    const std::string key = library_.NewGroupNode(mainKey, group->name);
    // The first group with a key keeps it, as the first match in a list would.
    groups.try_emplace(group->key, library_.Colors().NumberOfGroup(key));
    return true;
}

bool LibraryFiles::ReadColor(std::string_view record, std::string_view separator,
                             const SavedGroups& groups, std::uint32_t number) {
    const auto color = LibraryFileFormat::ParseColor(record, separator);
    if (!color)
        return false;
    const auto group = groups.find(color->groupKey);
    if (group == groups.end())
        return false;
    library_.Colors().Append(group->second, number, std::string(color->name), color->altName,
                             LibraryFileFormat::ValuesOf(*color));
    return true;
}

bool LibraryFiles::RefuseInvalidFile(const std::string& fileName) {
    ports_.prompts.ShowMessage(
        ports_.texts.GetInfoText(InfoTextNumber::InvalidFormat) + " " + fileName,
        MessageStyle::Exclamation, ports_.texts.GetInfoText(InfoTextNumber::Attention));
    return false;
}

bool LibraryFiles::FileWriteColorValues(const std::string& fileName, const std::string& mainKey) {
    if (library_.GetGroupInMainnode(mainKey).empty())
        return RefuseWithoutGroups(fileName);
    const AnsiCodePage::Encoded content = Compose(mainKey);
    if (!content.unstored.empty() && !AcceptUnstored(content.unstored))
        return false;
    return SafeFileWriter(ports_.files).Write(fileName, content.bytes, settings_.createBackups);
}

bool LibraryFiles::RefuseWithoutGroups(const std::string& fileName) {
    // The backup comes before the look at the groups, on purpose: only it remains.
    const bool backedUp =
        !settings_.createBackups || SafeFileWriter(ports_.files).MoveToBackup(fileName);
    if (backedUp)
        ports_.prompts.ShowMessage(ports_.texts.GetInfoText(InfoTextNumber::LibraryWithoutGroups),
                                   MessageStyle::Information,
                                   ports_.texts.GetInfoText(InfoTextNumber::Save));
    return false;
}

AnsiCodePage::Encoded LibraryFiles::Compose(const std::string& mainKey) {
    const std::vector<std::string> groups = library_.GetGroupInMainnode(mainKey);
    int count = static_cast<int>(groups.size());
    for (const std::string& group : groups)
        count += library_.GetColorCountInGroup(group);
    const ShownProgress progress(ports_.progress,
                                 ports_.texts.GetInfoText(InfoTextNumber::WritingLibrary), count);
    EncodedText text(ports_.codePage);
    LibraryFileFormat::AppendHeader(text.Line(), library_.Tree().At(mainKey).text, mainKey, count);
    text.EndLine();
    int progressValue = 0;
    AppendGroups(text, mainKey, progressValue);
    AppendColors(text, mainKey, progressValue);
    return text.Take();
}

void LibraryFiles::AppendGroups(EncodedText& text, const std::string& mainKey, int& progressValue) {
    for (const std::string& group : library_.GetGroupInMainnode(mainKey)) {
        LibraryFileFormat::AppendGroup(text.Line(), library_.Tree().At(group).text, group);
        text.EndLine();
        ports_.progress.SetProgress(++progressValue);
    }
}

void LibraryFiles::AppendColors(EncodedText& text, const std::string& mainKey, int progressValue) {
    const std::string separator = LibraryFileFormat::FieldSeparator(ports_.codePage);
    const ColorTable& colors = library_.Colors();
    for (int index = 1; index <= colors.UpperBound(); ++index) {
        if (!colors.KeyBeginsWith(index, mainKey))
            continue;
        LibraryFileFormat::AppendColor(text.Line(), colors.ViewAt(index), separator);
        text.EndLine();
        ports_.progress.SetProgress(++progressValue);
    }
}

bool LibraryFiles::AcceptUnstored(const std::string& unstored) {
    return ports_.prompts.ShowMessage(
               ports_.texts.GetInfoText(InfoTextNumber::CharactersNotStorable) + kLineBreak +
                   unstored,
               MessageStyle::ExclamationOkCancel,
               ports_.texts.GetInfoText(InfoTextNumber::Attention)) == Answer::Ok;
}
