#include "platform/Win32Prompts.h"

#include "common/FittedMessage.h"
#include "platform/BoxOwner.h"
#include "platform/CentredBox.h"
#include "platform/DpiScale.h"
#include "platform/FileDialog.h"
#include "platform/Fonts.h"
#include "platform/InputBox.h"
#include "platform/Utf16.h"
#include "platform/WindowGeometry.h"

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

// As a message box wraps its text, on systems where it is narrowest.
MessageSize SizeInBox(HFONT font, const std::string& text) {
    constexpr int kLineUnits = 170; // dialog units: a quarter of an average character's width
    const int lineWidth = MulDiv(AverageCharacterWidth(font), kLineUnits, 4);
    const SIZE size = MeasureText(font, ToUtf16(text), lineWidth, LongWords::Stay);
    return {size.cx, size.cy};
}

// What the screen has for a text, beside the box's border, icon and buttons.
MessageSize RoomOnScreen(HWND owner, HFONT font) {
    constexpr int kLinesOfBorder = 9;
    const RECT area = WorkAreaOf(owner);
    const int border = kLinesOfBorder * LineHeight(font);
    return {WidthOf(area) - border, HeightOf(area) - border};
}

std::string FittedToScreen(HWND owner, const std::string& prompt) {
    const FontHandle font = MessageFont(DpiOfScreen());
    return FittedMessage(prompt, RoomOnScreen(owner, font.Get()),
                         [&font](const std::string& text) { return SizeInBox(font.Get(), text); });
}

} // namespace

Answer Win32Prompts::ShowMessage(const std::string& prompt, int style, const std::string& title) {
    const BoxOwner owner(mainWindow_());
    const CentredBox centred(owner.Handle());
    return ToAnswer(MessageBoxW(owner.Handle(),
                                ToUtf16(FittedToScreen(owner.Handle(), prompt)).c_str(),
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

std::vector<std::string> Win32Prompts::AskOpenFiles(const FileDialogRequest& request) {
    const BoxOwner owner(mainWindow_());
    return ShowOpenDialogForSeveral(owner.Handle(), request);
}

std::optional<std::string> Win32Prompts::AskSaveFile(const FileDialogRequest& request) {
    const BoxOwner owner(mainWindow_());
    return ShowSaveDialog(owner.Handle(), request);
}

std::optional<ColorNumber> Win32Prompts::AskColor(const std::string& title, ColorNumber initial) {
    const BoxOwner owner(mainWindow_());
    return colorDialog_.Show(owner.Handle(), title, initial);
}
