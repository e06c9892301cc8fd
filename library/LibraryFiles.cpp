#include "library/LibraryFiles.h"

#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "common/ShownProgress.h"
#include "common/Text.h"
#include "library/LibraryFileFormat.h"
#include "library/SafeFileWriter.h"

#include <utility>

ReadResult LibraryFiles::Read(const std::string& fileName) {
    if (fileName.empty() || !ports_.files.Exists(fileName))
        return ReadResult::Missing;
    const std::optional<std::string> bytes = ports_.files.ReadWhole(fileName);
    if (!bytes)
        return ReadResult::Unreadable;
    try {
        return ReadContent(*bytes, fileName) ? ReadResult::Complete : ReadResult::Invalid;
    } catch (const RuntimeError&) {
        host_->ShowColorNodes({}, {});
        throw;
    }
}

bool LibraryFiles::ReadContent(std::string_view bytes, const std::string& fileName) {
    using namespace LibraryFileFormat;
    DecodedLines lines(bytes, ports_.codePage);
    const std::string_view line = lines.Next().value_or("");
    const auto header = ParseHeader(WithoutFirstCharacter(line));
    if (!header)
        return RefuseInvalidFile(fileName);
    const bool isHeaderHeld = IsHeaderTakenWhole(line);
    bool complete = false;
    {
        const ShownProgress progress(ports_.progress,
                                     ports_.texts.GetInfoText(InfoTextNumber::ReadingLibrary),
                                     header->count);
        library_.NewMainNode(header->name);
        Reading reading{library_.Tree().Selected(), isHeaderHeld};
        library_.Tree().SetTag(reading.mainKey, fileName);
        keptFiles_.SetSource(reading.mainKey, fileName);
        const auto place = [&] {
            return ErrorSentence{ErrorTexts::FileAndLine,
                                 {fileName, std::to_string(lines.Number())}};
        };
        complete = NamingPlace(place, [&] { return ReadRecords(lines, reading); });
        if (complete && reading.isHeldWhole)
            keptFiles_.Remember(reading.mainKey, bytes);
    }
    if (!complete)
        RefuseInvalidFile(fileName);
    host_->ShowColorNodes({}, {});
    return complete;
}

bool LibraryFiles::ReadRecords(DecodedLines& lines, Reading& reading) {
    const std::string separator = LibraryFileFormat::FieldSeparator(ports_.codePage);
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
            complete = ReadGroup(*line, reading);
        else if (record.starts_with("E#"))
            complete = ReadColor(*line, separator, reading, ++colorNumber);
        else
            reading.isHeldWhole = reading.isHeldWhole && line->empty();
        ports_.progress.SetProgress(++lineNumber);
    }
    return complete;
}

bool LibraryFiles::ReadGroup(std::string_view line, Reading& reading) {
    const auto group = LibraryFileFormat::ParseGroup(LibraryFileFormat::WithoutQuotes(line));
    if (!group)
        return false;
    reading.isHeldWhole = reading.isHeldWhole && LibraryFileFormat::IsGroupTakenWhole(line);
    const std::string key = library_.NewGroupNode(reading.mainKey, group->name);
    // The first group with a key keeps it, as the first match in a list would.
    reading.groups.try_emplace(group->key, library_.Colors().NumberOfGroup(key));
    return true;
}

bool LibraryFiles::ReadColor(std::string_view line, std::string_view separator, Reading& reading,
                             std::uint32_t number) {
    using namespace LibraryFileFormat;
    const auto color = ParseColor(WithoutQuotes(line), separator);
    if (!color)
        return false;
    const auto group = reading.groups.find(color->groupKey);
    if (group == reading.groups.end())
        return false;
    library_.Colors().Append(group->second, number, std::string(color->name), color->altName,
                             ValuesOf(*color));
    reading.isHeldWhole = reading.isHeldWhole && IsColorTakenWhole(line, *color);
    return true;
}

bool LibraryFiles::RefuseInvalidFile(const std::string& fileName) {
    ports_.prompts.ShowMessage(
        ports_.texts.GetInfoText(InfoTextNumber::InvalidFormat) + " " + fileName,
        MessageStyle::Exclamation, ports_.texts.GetInfoText(InfoTextNumber::Attention));
    return false;
}

WriteResult LibraryFiles::FileWriteColorValues(const std::string& fileName,
                                               const std::string& mainKey, UnknownContent unknown) {
    if (library_.GetGroupInMainnode(mainKey).empty())
        return RefuseWithoutGroups(fileName, mainKey, unknown);
    const AnsiCodePage::Encoded content = Compose(mainKey);
    SaveLosses losses =
        NamesLostBySaving(library_, mainKey, LibraryFileFormat::FieldSeparator(ports_.codePage));
    losses.characters = content.unstored;
    if (!AcceptLosses(losses))
        return {};
    WriteResult result;
    const Exchanged outcome =
        SafeFileWriter(ports_.files).Write(fileName, content.bytes, settings_.createBackups, [&] {
            return Keep(fileName, mainKey, unknown, result.keptPath);
        });
    result.isWritten = outcome == Exchanged::Done;
    if (result.isWritten) {
        keptFiles_.SetSource(mainKey, fileName);
        keptFiles_.Remember(mainKey, content.bytes);
    } else if (outcome == Exchanged::Unchanged) {
        RemoveCopy(result, fileName);
    }
    return result;
}

// The old file was not touched: a copy beside it would only be one more.
void LibraryFiles::RemoveCopy(WriteResult& result, const std::string& fileName) {
    if (!result.keptPath.empty() && ports_.files.Exists(fileName))
        ports_.files.Remove(std::exchange(result.keptPath, {}));
}

// False: it could not be kept, so that it has to stay where it is.
bool LibraryFiles::Keep(const std::string& fileName, const std::string& mainKey,
                        UnknownContent unknown, std::string& keptPath) {
    if (unknown == UnknownContent::GivenUp)
        return true;
    const std::optional<std::string> kept = keptFiles_.KeepUnknown(fileName, mainKey);
    keptPath = kept.value_or("");
    return kept.has_value();
}

WriteResult LibraryFiles::RefuseWithoutGroups(const std::string& fileName,
                                              const std::string& mainKey, UnknownContent unknown) {
    // The backup comes before the look at the groups, on purpose: only it remains.
    WriteResult result;
    const bool backedUp =
        !settings_.createBackups || (Keep(fileName, mainKey, unknown, result.keptPath) &&
                                     SafeFileWriter(ports_.files).MoveToBackup(fileName));
    if (!backedUp)
        RemoveCopy(result, fileName);
    else
        ports_.prompts.ShowMessage(ports_.texts.GetInfoText(InfoTextNumber::LibraryWithoutGroups),
                                   MessageStyle::Information,
                                   ports_.texts.GetInfoText(InfoTextNumber::Save));
    return result;
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

bool LibraryFiles::AcceptLosses(const SaveLosses& losses) {
    return losses.IsNothing() ||
           ports_.prompts.ShowMessage(
               QuestionAbout(losses, ports_.texts), MessageStyle::ExclamationOkCancel,
               ports_.texts.GetInfoText(InfoTextNumber::Attention)) == Answer::Ok;
}
