#include "mainwindow/FileCommands.h"

#include "common/FileNames.h"
#include "common/FirstError.h"
#include "common/InfoTextNumber.h"
#include "common/Text.h"

namespace {

constexpr const char* kLibraryExtension = ".tnt";

} // namespace

// Also of a file that is not there; letters of A to Z count in either case.
bool FileCommands::AreSame(const std::string& path, const std::string& other) const {
    return ToLowerAscii(path) == ToLowerAscii(other) || parts_.disk.AreSame(path, other);
}

std::string FileCommands::Text(std::int32_t number) const {
    return parts_.texts.GetInfoText(number);
}

FileDialogRequest FileCommands::Request(unsigned flags) const {
    return {Text(InfoTextNumber::ColorLibrary),
            Text(InfoTextNumber::ColorLibraries) + "|*.tnt|" + Text(InfoTextNumber::AllFiles) +
                "|*.*",
            dialogFileName_, flags};
}

void FileCommands::mnuFileOpen_Click() {
    const auto path = parts_.prompts.AskOpenFile(Request(FileDialogFlags::Open));
    if (!path || !OpenLibrary(*path))
        return;
    dialogFileName_ = *path;
    AskAutoload(*path);
}

void FileCommands::OpenDropped(const std::vector<std::string>& paths) {
    FirstError error;
    for (const std::string& path : paths)
        if (HasExtension(path, kLibraryExtension))
            error.Watch([&] {
                if (OpenLibrary(path) && paths.size() == 1)
                    AskAutoload(path);
            });
    error.Rethrow();
}

bool FileCommands::OpenLibrary(const std::string& path) {
    if (!parts_.files.FileReadColorValues(path)) {
        TellOpenFailed(path);
        return false;
    }
    parts_.bars.SetInfoPanelText("Okay " + FileNamePart(path));
    return true;
}

void FileCommands::TellOpenFailed(const std::string& path) {
    parts_.prompts.ShowMessage(Text(InfoTextNumber::OpenFailed) + path, MessageStyle::Critical,
                               Text(InfoTextNumber::Attention));
}

void FileCommands::AskAutoload(const std::string& path) {
    const Answer answer = parts_.prompts.ShowMessage(
        Text(InfoTextNumber::AskAutoload) + kLineBreak + path, MessageStyle::YesNoQuestion,
        Text(InfoTextNumber::ColorLibraries));
    if (answer != Answer::Yes)
        return;
    if (!parts_.codePage.Encode(path).unstored.empty()) {
        parts_.prompts.ShowMessage(Text(InfoTextNumber::PathNotStorable) + kLineBreak + path,
                                   MessageStyle::Exclamation, Text(InfoTextNumber::Attention));
        return;
    }
    parts_.settings.defaultColorFile = path;
}

void FileCommands::mnuFileSave_Click() {
    const std::string mainKey = parts_.library.GetActiveMainnode();
    if (mainKey.empty())
        return;
    const std::optional<std::string> path = parts_.library.Tree().At(mainKey).file;
    if (!path) {
        mnuFileSaveAs_Click();
        return;
    }
    // What is told, and what the library's file is then, comes from the dialog and not from the
    // file that is written, on purpose: after another file was opened, the library is re-targeted
    // to the dialog's file.  A dialog that has had no file yet has no say.
    SaveTo({*path, dialogFileName_.empty() ? *path : dialogFileName_, UnknownContent::Kept},
           mainKey);
}

void FileCommands::mnuFileSaveAs_Click() {
    const std::string mainKey = parts_.library.GetActiveMainnode();
    if (mainKey.empty())
        return;
    const LibraryNode& library = parts_.library.Tree().At(mainKey);
    FileDialogRequest request = Request(FileDialogFlags::SaveAs);
    request.fileName = library.file.value_or(parts_.programFolder + "\\newtnt.tnt");
    const auto path = parts_.prompts.AskSaveFile(request);
    if (!path)
        return;
    // The dialog has asked whether another file is to be replaced; of its own file the user cannot
    // know that it has something in it which the library has not.
    const bool isOwnFile =
        AreSame(*path, library.file.value_or("")) || AreSame(*path, library.source);
    if (SaveTo({*path, *path, isOwnFile ? UnknownContent::Kept : UnknownContent::GivenUp}, mainKey))
        dialogFileName_ = *path;
}

bool FileCommands::SaveTo(const SaveTarget& target, const std::string& mainKey) {
    const WriteResult result =
        parts_.files.FileWriteColorValues(target.path, mainKey, target.unknown);
    if (result.isWritten)
        parts_.library.Tree().SetFile(mainKey, target.nextPath);
    ShowSaved(result.isWritten ? "Okay " + FileNamePart(target.nextPath) : "", result.keptPath);
    if (!result.isWritten)
        parts_.prompts.ShowMessage(Text(InfoTextNumber::SaveFailed) + target.nextPath,
                                   MessageStyle::Critical, Text(InfoTextNumber::Attention));
    return result.isWritten;
}

void FileCommands::ShowSaved(const std::string& outcome, const std::string& keptPath) {
    std::string status = outcome;
    if (!keptPath.empty())
        status += (status.empty() ? "" : "  -  ") + Text(InfoTextNumber::EarlierContentKept) + " " +
                  FileNamePart(keptPath);
    if (!status.empty())
        parts_.bars.SetInfoPanelText(status);
}

void FileCommands::mnuFileClose_Click() {
    parts_.editing.DeleteSelectedNode(EditingCommands::Confirmation::None);
}

void FileCommands::mnuFileCancelAutoload_Click() {
    const Answer answer = parts_.prompts.ShowMessage(
        Text(InfoTextNumber::AskCancelAutoload) + parts_.settings.defaultColorFile,
        MessageStyle::YesNoQuestion, Text(InfoTextNumber::ColorLibraries));
    if (answer == Answer::Yes)
        parts_.settings.defaultColorFile.clear();
}

void FileCommands::Autoload() {
    // Save re-targets to the dialog's file, so the dialog starts with it, also when only a part of
    // the library could be read.
    dialogFileName_ = parts_.settings.defaultColorFile;
    if (parts_.files.Read(dialogFileName_) == ReadResult::Unreadable)
        TellOpenFailed(dialogFileName_);
    if (parts_.library.Tree().MainNodes().empty())
        dialogFileName_.clear();
}
