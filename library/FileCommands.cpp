#include "library/FileCommands.h"

#include "common/FileNames.h"
#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "common/Text.h"
#include "common/ValueRestorer.h"

#include <exception>

namespace {

constexpr const char* kLibraryExtension = ".tnt";

} // namespace

std::string FileCommands::Text(std::int32_t number) const {
    return parts_.texts.GetInfoText(number);
}

FileDialogRequest FileCommands::Request(unsigned flags) const {
    return {Text(InfoTextNumber::ColorLibrary),
            Text(InfoTextNumber::ColorLibraries) + "|*.tnt|" + Text(InfoTextNumber::AllFiles) +
                "|*.*",
            dialogFileName_, flags};
}

void FileCommands::mnuFileNew_Click() {
    parts_.library.NewMainNode();
}

void FileCommands::mnuFileOpen_Click() {
    const auto path = parts_.prompts.AskOpenFile(Request(FileDialogFlags::Open));
    if (!path)
        return;
    OpenLibrary(*path);
}

void FileCommands::OpenDropped(const std::vector<std::string>& paths) {
    std::exception_ptr firstError;
    for (const std::string& path : paths) {
        if (!HasExtension(path, kLibraryExtension))
            continue;
        try {
            OpenLibrary(path);
        } catch (const RuntimeError&) {
            if (!firstError)
                firstError = std::current_exception();
        }
    }
    if (firstError)
        std::rethrow_exception(firstError);
}

void FileCommands::OpenLibrary(const std::string& path) {
    dialogFileName_ = path;
    if (!parts_.files.FileReadColorValues(path)) {
        parts_.prompts.ShowMessage(Text(InfoTextNumber::OpenFailed) + path, MessageStyle::Critical,
                                   Text(InfoTextNumber::Attention));
        return;
    }
    host_->ShowStatus("Okay " + FileNamePart(path));
    AskAutoload(path);
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
    const std::string path = parts_.library.Tree().At(mainKey).tag;
    if (path == kUnsavedTag) {
        mnuFileSaveAs_Click();
        return;
    }
    if (!WriteTo(path, mainKey))
        return;
    // Both come from the dialog and not from the file just written, on purpose: after another file
    // was opened, the library is re-targeted to the dialog's file.
    parts_.library.Tree().SetTag(mainKey, dialogFileName_);
    host_->ShowStatus("Okay " + FileNamePart(dialogFileName_));
}

void FileCommands::mnuFileSaveAs_Click() {
    const std::string mainKey = parts_.library.GetActiveMainnode();
    if (mainKey.empty())
        return;
    const std::string& tag = parts_.library.Tree().At(mainKey).tag;
    FileDialogRequest request = Request(FileDialogFlags::SaveAs);
    request.fileName = tag == kUnsavedTag ? parts_.programFolder + "\\newtnt.tnt" : tag;
    const auto path = parts_.prompts.AskSaveFile(request);
    if (!path)
        return;
    dialogFileName_ = *path;
    if (!WriteTo(*path, mainKey))
        return;
    parts_.library.Tree().SetTag(mainKey, *path);
    host_->ShowStatus("Okay " + FileNamePart(*path));
}

bool FileCommands::WriteTo(const std::string& path, const std::string& mainKey) {
    if (parts_.files.FileWriteColorValues(path, mainKey))
        return true;
    parts_.prompts.ShowMessage(Text(InfoTextNumber::SaveFailed) + dialogFileName_,
                               MessageStyle::Critical, Text(InfoTextNumber::Attention));
    return false;
}

void FileCommands::mnuFileClose_Click() {
    const ValueRestorer withoutAsking(parts_.settings.confirmDel, false);
    host_->DeleteSelectedNode();
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
    parts_.files.FileReadColorValues(dialogFileName_);
    if (parts_.library.Tree().MainNodes().empty())
        dialogFileName_.clear();
}
