#include "library/LibraryFiles.h"

#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "common/ShownProgress.h"
#include "common/Text.h"
#include "library/LibraryFileFormat.h"
#include "library/SafeFileWriter.h"

namespace {

bool StartsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

} // namespace

bool LibraryFiles::FileReadColorValues(const std::string& fileName) {
    if (fileName.empty() || !ports_.files.Exists(fileName))
        return false;
    const std::optional<std::string> bytes = ports_.files.ReadWhole(fileName);
    if (!bytes)
        throw RuntimeError(ErrorNumber::PermissionDenied, "The file cannot be read: " + fileName);
    const std::string content = ports_.codePage.Decode(*bytes);
    bool complete = false;
    try {
        complete = ReadRecords(LibraryFileFormat::SplitLines(content), fileName);
    } catch (const RuntimeError&) {
        host_->ShowColorNodes({}, {});
        throw;
    }
    return complete;
}

bool LibraryFiles::ReadRecords(const std::vector<std::string_view>& lines,
                               const std::string& fileName) {
    using namespace LibraryFileFormat;
    const auto header = lines.empty() ? std::nullopt : ParseHeader(WithoutFirstCharacter(lines[0]));
    if (!header)
        return RefuseInvalidFile(fileName);
    bool complete = true;
    {
        const ShownProgress progress(ports_.progress,
                                     ports_.texts.GetInfoText(InfoTextNumber::ReadingLibrary),
                                     header->count);
        library_.NewMainNode(header->name);
        const std::string mainKey = library_.Tree().Selected();
        library_.Tree().SetTag(mainKey, fileName);
        const std::string separator = FieldSeparator(ports_.codePage);
        GroupKeys groups;
        // One counter for the whole file, on purpose: colour keys are unique without a look-up.
        int colorNumber = 0;
        for (std::size_t line = 1; line < lines.size() && complete; ++line) {
            const std::string_view record = WithoutQuotes(lines[line]);
            if (StartsWith(record, "G#"))
                complete = ReadGroup(record, mainKey, groups);
            else if (StartsWith(record, "E#"))
                complete = ReadColor(record, separator, groups, ++colorNumber);
            ports_.progress.SetProgress(static_cast<std::int32_t>(line));
        }
    }
    if (!complete)
        RefuseInvalidFile(fileName);
    host_->ShowColorNodes({}, {});
    return complete;
}

bool LibraryFiles::ReadGroup(std::string_view record, const std::string& mainKey,
                             GroupKeys& groups) {
    const auto group = LibraryFileFormat::ParseGroup(record);
    if (!group)
        return false;
    // The first group with a key keeps it, as the first match in a list would.
    groups.try_emplace(group->key, library_.NewGroupNode(mainKey, group->name));
    return true;
}

bool LibraryFiles::ReadColor(std::string_view record, std::string_view separator,
                             const GroupKeys& groups, int number) {
    const auto color = LibraryFileFormat::ParseColor(record, separator);
    if (!color)
        return false;
    const auto group = groups.find(color->groupKey);
    if (group == groups.end())
        return false;
    library_.Colors().Append({color->name, group->second + "E" + std::to_string(number),
                              group->second, false, LibraryFileFormat::ValuesOf(*color),
                              color->altName});
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
    const Content content = Compose(mainKey);
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

LibraryFiles::Content LibraryFiles::Compose(const std::string& mainKey) {
    const std::vector<std::string> groups = library_.GetGroupInMainnode(mainKey);
    int count = static_cast<int>(groups.size());
    for (const std::string& group : groups)
        count += library_.GetColorCountInGroup(group);
    const ShownProgress progress(ports_.progress,
                                 ports_.texts.GetInfoText(InfoTextNumber::WritingLibrary), count);
    Content content;
    AppendLine(content,
               LibraryFileFormat::FormatHeader(library_.Tree().At(mainKey).text, mainKey, count));
    int progressValue = 0;
    AppendGroups(content, mainKey, progressValue);
    AppendColors(content, mainKey, progressValue);
    return content;
}

void LibraryFiles::AppendGroups(Content& content, const std::string& mainKey, int& progressValue) {
    for (const std::string& group : library_.GetGroupInMainnode(mainKey)) {
        AppendLine(content, LibraryFileFormat::FormatGroup(library_.Tree().At(group).text, group));
        ports_.progress.SetProgress(++progressValue);
    }
}

void LibraryFiles::AppendColors(Content& content, const std::string& mainKey, int progressValue) {
    const std::string separator = LibraryFileFormat::FieldSeparator(ports_.codePage);
    const ColorTable& colors = library_.Colors();
    for (int index = 1; index <= colors.UpperBound(); ++index) {
        if (!StartsWith(colors.At(index).key, mainKey))
            continue;
        AppendLine(content, LibraryFileFormat::FormatColor(colors.At(index), separator));
        ports_.progress.SetProgress(++progressValue);
    }
}

void LibraryFiles::AppendLine(Content& content, const std::string& line) const {
    const AnsiCodePage::Encoded encoded = ports_.codePage.Encode(line);
    content.bytes += encoded.bytes;
    for (const std::string& character : CharactersOf(encoded.unstored))
        if (content.unstored.find(character) == std::string::npos)
            content.unstored += character;
}

bool LibraryFiles::AcceptUnstored(const std::string& unstored) {
    return ports_.prompts.ShowMessage(
               ports_.texts.GetInfoText(InfoTextNumber::CharactersNotStorable) + kLineBreak +
                   unstored,
               MessageStyle::ExclamationOkCancel,
               ports_.texts.GetInfoText(InfoTextNumber::Attention)) == Answer::Ok;
}
