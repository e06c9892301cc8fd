#include "platform/FileDialog.h"

#include "platform/ChosenFiles.h"
#include "platform/CommonDialogError.h"
#include "platform/FileDialogFilter.h"
#include "platform/Utf16.h"

#include <algorithm>
#include <cderr.h>
#include <commdlg.h>

namespace {

constexpr std::size_t kLongestPath = 0x8000;         // what the platform's paths can have
constexpr std::size_t kLongestOfSeveral = 0x10'0000; // a folder and names of several thousand files

// The dialog walks the process's current directory along with the user; a file name without a
// folder would then mean another file.  (OFN_NOCHANGEDIR does not hold for the open dialog.)
class CurrentDirectoryKeeper {
public:
    CurrentDirectoryKeeper() : directory_(GetCurrentDirectoryW(0, nullptr), L'\0') {
        directory_.resize(
            GetCurrentDirectoryW(static_cast<DWORD>(directory_.size()), directory_.data()));
    }
    CurrentDirectoryKeeper(const CurrentDirectoryKeeper&) = delete;
    CurrentDirectoryKeeper& operator=(const CurrentDirectoryKeeper&) = delete;
    ~CurrentDirectoryKeeper() { SetCurrentDirectoryW(directory_.c_str()); }

private:
    std::wstring directory_;
};

using DialogFunction = BOOL(WINAPI*)(OPENFILENAMEW*);

class FileDialog {
public:
    FileDialog(HWND owner, const FileDialogRequest& request, std::size_t room = kLongestPath)
        : title_(ToUtf16(request.title)), filter_(PlatformFilter(request.filter)),
          path_(room, L'\0') {
        const std::wstring preset = ToUtf16(request.fileName);
        if (preset.size() < path_.size())
            std::copy(preset.begin(), preset.end(), path_.begin());
        dialog_.lStructSize = sizeof dialog_;
        dialog_.hwndOwner = owner;
        dialog_.lpstrFilter = filter_.empty() ? nullptr : filter_.c_str();
        dialog_.nFilterIndex = 1;
        dialog_.lpstrFile = path_.data();
        dialog_.nMaxFile = static_cast<DWORD>(path_.size());
        dialog_.lpstrTitle = title_.c_str();
        dialog_.Flags = OFN_EXPLORER | request.flags;
    }

    void SetDefaultExtension(const std::wstring& extension) {
        extension_ = extension;
        dialog_.lpstrDefExt = extension_.empty() ? nullptr : extension_.c_str();
    }

    // Gives what the dialog has left in its buffer.
    [[nodiscard]] std::optional<std::wstring> Show(DialogFunction function) {
        const CurrentDirectoryKeeper keeper;
        bool chosen = function(&dialog_) != FALSE;
        if (!chosen && CommDlgExtendedError() == FNERR_INVALIDFILENAME) {
            path_.front() = L'\0'; // a preset that the platform refuses must not hide the dialog
            chosen = function(&dialog_) != FALSE;
        }
        if (chosen)
            return path_;
        ThrowUnlessCancelled();
        return std::nullopt;
    }

private:
    std::wstring title_;
    std::wstring filter_;
    std::wstring path_;
    std::wstring extension_;
    OPENFILENAMEW dialog_{};
};

std::optional<std::string> OnePath(const std::optional<std::wstring>& buffer) {
    return buffer ? std::optional(ToUtf8(buffer->c_str())) : std::nullopt;
}

} // namespace

std::optional<std::string> ShowOpenDialog(HWND owner, const FileDialogRequest& request) {
    return OnePath(FileDialog(owner, request).Show(GetOpenFileNameW));
}

std::vector<std::string> ShowOpenDialogForSeveral(HWND owner, const FileDialogRequest& request) {
    FileDialogRequest several = request;
    several.flags |= OFN_ALLOWMULTISELECT;
    const std::optional<std::wstring> buffer =
        FileDialog(owner, several, kLongestOfSeveral).Show(GetOpenFileNameW);
    return buffer ? ChosenFiles(*buffer) : std::vector<std::string>();
}

std::optional<std::string> ShowSaveDialog(HWND owner, const FileDialogRequest& request) {
    FileDialog dialog(owner, request);
    dialog.SetDefaultExtension(DefaultExtension(request.filter));
    return OnePath(dialog.Show(GetSaveFileNameW));
}
