#include "platform/Win32Prompts.h"

#include "platform/FileDialog.h"
#include "platform/InputBox.h"
#include "platform/Utf16.h"

namespace {

Answer ToAnswer(int button) {
    switch (button) {
    case IDOK:
        return Answer::Ok;
    case IDYES:
        return Answer::Yes;
    case IDNO:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

} // namespace

HWND Win32Prompts::ActivePopup() const {
    HWND owner = owner_();
    HWND popup = owner != nullptr ? GetLastActivePopup(owner) : nullptr;
    // One that was hidden meanwhile still counts as the last active.
    return popup != nullptr && IsWindowVisible(popup) != FALSE ? popup : owner;
}

Answer Win32Prompts::ShowMessage(const std::string& prompt, int style, const std::string& title) {
    return ToAnswer(MessageBoxW(ActivePopup(), ToUtf16(prompt).c_str(), ToUtf16(title).c_str(),
                                static_cast<UINT>(style)));
}

std::string Win32Prompts::AskText(const std::string& prompt, const std::string& title,
                                  const std::string& preset) {
    return ToUtf8(ShowInputBox(ActivePopup(), ToUtf16(prompt), ToUtf16(title), ToUtf16(preset)));
}

std::optional<std::string> Win32Prompts::AskOpenFile(const FileDialogRequest& request) {
    return ShowOpenDialog(ActivePopup(), request);
}

std::optional<std::string> Win32Prompts::AskSaveFile(const FileDialogRequest& request) {
    return ShowSaveDialog(ActivePopup(), request);
}

std::optional<ColorNumber> Win32Prompts::AskColor(const std::string& title, ColorNumber initial) {
    return colorDialog_.Show(ActivePopup(), title, initial);
}
