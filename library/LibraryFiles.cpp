#include "library/LibraryFiles.h"

#include "library/LibraryContent.h"
#include "library/LibraryFileFormat.h"
#include "library/LibraryReader.h"
#include "library/SafeFileWriter.h"

#include <memory>
#include <utility>

ReadOutcome LibraryFiles::Read(const std::string& fileName, WorkProgress& progress) {
    if (fileName.empty() || !ports_.files.Exists(fileName))
        return {.result = ReadResult::Missing};
    const std::optional<std::string> bytes = ports_.files.ReadWhole(fileName);
    if (!bytes)
        return {.result = ReadResult::Unreadable};
    LibraryReader reader(library_, ports_.codePage, *bytes, fileName);
    ReadOutcome outcome;
    try {
        outcome.result = reader.Read(progress) ? ReadResult::Complete : ReadResult::Invalid;
    } catch (const RuntimeError& error) {
        outcome.result = ReadResult::Failed;
        outcome.error =
            error.At({ErrorTexts::FileAndLine, {fileName, std::to_string(reader.LineNumber())}});
    }
    outcome.mainKey = reader.MainKey();
    if (outcome.result == ReadResult::Complete && reader.IsHeldWhole())
        keptFiles_.Remember(library_.Tree().At(outcome.mainKey), *bytes);
    if (!outcome.mainKey.empty())
        savedStates_.Saved(outcome.mainKey);
    return outcome;
}

ComposedLibrary LibraryFiles::Compose(const std::string& mainKey, WorkProgress& progress) const {
    const LibraryContent content = LibraryContent::Of(
        library_, mainKey, std::make_shared<const ColorSnapshot>(library_.Colors().Snapshot()));
    AnsiCodePage::Encoded encoded =
        content.Compose(ports_.codePage, NameSpelling::AsItIs, progress).encoded;
    SaveLosses losses =
        NamesLostBySaving(library_, mainKey, LibraryFileFormat::FieldSeparator(ports_.codePage));
    losses.characters = std::move(encoded.unstored);
    return {std::move(encoded.bytes), std::move(losses)};
}

WriteResult LibraryFiles::Write(const SaveTarget& target, std::string_view bytes) {
    WriteResult result;
    std::unique_ptr<FileTurn> turn; // what is looked at is what is replaced
    const Exchanged outcome =
        SafeFileWriter(ports_.files).Write(target.fileName, bytes, target.keepsBackup, [&] {
            turn = ports_.files.TakeTurn(target.fileName);
            const std::optional<std::string> kept = Keep(target);
            result.keptPath = kept.value_or("");
            return kept.has_value();
        });
    result.isWritten = outcome == Exchanged::Done;
    if (result.isWritten) {
        library_.Tree().SetSource(target.mainKey, target.fileName);
        keptFiles_.Remember(library_.Tree().At(target.mainKey), bytes);
        savedStates_.Saved(target.mainKey);
    } else if (outcome == Exchanged::Unchanged) {
        RemoveCopy(result.keptPath, target.fileName);
    }
    return result;
}

void LibraryFiles::ForgetFile(const std::string& mainKey) {
    keptFiles_.Forget(library_.Tree().At(mainKey).id);
    savedStates_.Forget(mainKey);
}

std::optional<std::string> LibraryFiles::BackUp(const SaveTarget& target) {
    const std::unique_ptr<FileTurn> turn = ports_.files.TakeTurn(target.fileName);
    std::optional<std::string> kept = Keep(target);
    if (kept && !SafeFileWriter(ports_.files).MoveToBackup(target.fileName)) {
        RemoveCopy(*kept, target.fileName);
        kept.reset();
    }
    return kept;
}

// The old file was not touched: a copy beside it would only be one more.
void LibraryFiles::RemoveCopy(std::string& keptPath, const std::string& fileName) {
    if (!keptPath.empty() && ports_.files.Exists(fileName))
        ports_.files.Remove(std::exchange(keptPath, {}));
}

std::optional<std::string> LibraryFiles::Keep(const SaveTarget& target) {
    if (target.unknown == UnknownContent::GivenUp)
        return "";
    return keptFiles_.KeepUnknown(target.fileName, library_.Tree().At(target.mainKey).id);
}
