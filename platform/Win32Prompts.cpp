#include "platform/Win32Prompts.h"

#include "common/MessageText.h"
#include "platform/BoxOwner.h"
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

Answer Win32Prompts::ShowMessage(const std::string& prompt, int style, const std::string& title) {
    const BoxOwner owner(mainWindow_());
    return ToAnswer(MessageBoxW(owner.Handle(),
                                ToUtf16(FittedMessage(prompt, RoomOnScreen())).c_str(),
                                ToUtf16(title).c_str(), static_cast<UINT>(style)));
}

std::string Win32Prompts::AskText(const std::string& prompt, const std::string& title,
                                  const std::string& preset) {
    const BoxOwner owner(mainWindow_());
    return ToUtf8(ShowInputBox(owner.Handle(), ToUtf16(prompt), ToUtf16(title), ToUtf16(preset)));
}

std::optional<std::string> Win32Prompts::AskOpenFile(const FileDialogRequest& request) {
    const BoxOwner owner(mainWindow_());
    return ShowOpenDialog(owner.Handle(), request);
}

std::optional<std::string> Win32Prompts::AskSaveFile(const FileDialogRequest& request) {
    const BoxOwner owner(mainWindow_());
    return ShowSaveDialog(owner.Handle(), request);
}

std::optional<ColorNumber> Win32Prompts::AskColor(const std::string& title, ColorNumber initial) {
    const BoxOwner owner(mainWindow_());
    return colorDialog_.Show(owner.Handle(), title, initial);
}
