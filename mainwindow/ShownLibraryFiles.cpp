#include "mainwindow/ShownLibraryFiles.h"

#include "common/InfoTextNumber.h"
#include "common/ShownProgress.h"
#include "mainwindow/SaveQuestion.h"

#include <optional>

namespace {

// The progress window, from the start of the work for as long as this lives.
class WorkInWindow : public WorkProgress {
public:
    WorkInWindow(ProgressView& view, InfoTexts& texts, std::int32_t labelNumber)
        : view_(view), texts_(texts), labelNumber_(labelNumber) {}

    void Starts(std::int32_t total) override {
        shown_.emplace(view_, texts_.GetInfoText(labelNumber_), total);
    }
    void Reaches(std::int32_t done) override { view_.SetProgress(done); }

private:
    ProgressView& view_;
    InfoTexts& texts_;
    std::int32_t labelNumber_;
    std::optional<ShownProgress> shown_;
};

} // namespace

ReadResult ShownLibraryFiles::Read(const std::string& fileName) {
    const ReadOutcome outcome = [&] {
        WorkInWindow progress(parts_.progress, parts_.texts, InfoTextNumber::ReadingLibrary);
        return parts_.files.Read(fileName, progress);
    }();
    if (outcome.result == ReadResult::Invalid)
        parts_.prompts.ShowMessage(
            parts_.texts.GetInfoText(InfoTextNumber::InvalidFormat) + " " + fileName,
            MessageStyle::Exclamation, parts_.texts.GetInfoText(InfoTextNumber::Attention));
    if (!outcome.mainKey.empty())
        parts_.panes.ShowColorNodes();
    if (outcome.error)
        throw RuntimeError(*outcome.error);
    return outcome.result;
}

WriteResult ShownLibraryFiles::FileWriteColorValues(const std::string& fileName,
                                                    const std::string& mainKey,
                                                    UnknownContent unknown) {
    const SaveTarget target{fileName, mainKey, parts_.settings.createBackups, unknown};
    if (parts_.library.GetGroupInMainnode(mainKey).empty())
        return RefuseWithoutGroups(target);
    const ComposedLibrary composed = [&] {
        WorkInWindow progress(parts_.progress, parts_.texts, InfoTextNumber::WritingLibrary);
        return parts_.files.Compose(mainKey, progress);
    }();
    return AcceptLosses(composed.losses) ? parts_.files.Write(target, composed.bytes)
                                         : WriteResult{};
}

// The backup comes before the look at the groups, on purpose: only it remains.
WriteResult ShownLibraryFiles::RefuseWithoutGroups(const SaveTarget& target) {
    WriteResult result;
    if (target.keepsBackup) {
        const std::optional<std::string> kept = parts_.files.BackUp(target);
        if (!kept)
            return result;
        result.keptPath = *kept;
    }
    parts_.prompts.ShowMessage(parts_.texts.GetInfoText(InfoTextNumber::LibraryWithoutGroups),
                               MessageStyle::Information,
                               parts_.texts.GetInfoText(InfoTextNumber::Save));
    return result;
}

bool ShownLibraryFiles::AcceptLosses(const SaveLosses& losses) {
    return losses.IsNothing() ||
           parts_.prompts.ShowMessage(
               QuestionAbout(losses, parts_.texts), MessageStyle::ExclamationOkCancel,
               parts_.texts.GetInfoText(InfoTextNumber::Attention)) == Answer::Ok;
}
