#include "platform/Win32Prompts.h"

#include "common/MessageText.h"
#include "platform/DpiScale.h"
#include "platform/FileDialog.h"
#include "platform/Fonts.h"
#include "platform/InputBox.h"
#include "platform/Utf16.h"

#include <algorithm>

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

// The lines that the primary screen has room for, beside the box's border and buttons.
MessageRoom RoomOnScreen() {
    constexpr int kLinesOfBorder = 12;
    constexpr int kFewest = 10;
    constexpr std::size_t kLineLength = 90; // in a box on the smallest screens
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const int lines = HeightOf(area) / LineHeight(MessageFont(DpiOfScreen()).Get());
    return {static_cast<std::size_t>(std::max(lines - kLinesOfBorder, kFewest)), kLineLength};
}

} // namespace

HWND Win32Prompts::ActivePopup() const {
    HWND owner = owner_();
    HWND popup = owner != nullptr ? GetLastActivePopup(owner) : nullptr;
    // One that was hidden meanwhile still counts as the last active.
    return popup != nullptr && IsWindowVisible(popup) != FALSE ? popup : owner;
}

Answer Win32Prompts::ShowMessage(const std::string& prompt, int style, const std::string& title) {
    return ToAnswer(MessageBoxW(ActivePopup(),
                                ToUtf16(FittedMessage(prompt, RoomOnScreen())).c_str(),
                                ToUtf16(title).c_str(), static_cast<UINT>(style)));
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
