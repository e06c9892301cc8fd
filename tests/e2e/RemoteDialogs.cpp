#include "tests/e2e/RemoteDialogs.h"

#include "platform/InputBoxControls.h"
#include "platform/Utf16.h"
#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteMemory.h"
#include "tests/platform/PollUntil.h"

#include <commdlg.h>
#include <dlgs.h>
#include <stdexcept>
#include <utility>

namespace {

constexpr int kMessageText = 0xFFFF;
constexpr int kFileName = 1148;
constexpr int kKinds = cmb1;         // the combo box with the kinds of files
constexpr int kFirstColorPart = 706; // red; green and blue follow

bool HasChild(const RemoteWindow& window, int id) {
    return GetDlgItem(window.Handle(), id) != nullptr;
}

// The visible popup of the class that holds the control.
RemoteWindow WaitForPopup(const RemoteWindow& owner, const wchar_t* className, int control) {
    RemoteWindow popup;
    const bool came = PollUntil([&] {
        popup = owner.ActivePopup();
        return popup.Handle() != owner.Handle() && popup.IsVisible() &&
               popup.ClassName() == className && HasChild(popup, control);
    });
    if (!came)
        throw std::runtime_error("No dialog of class " + ToUtf8(className));
    return popup;
}

// The next window may get the number of the one that has just gone: so its control is looked for
// too.
bool IsGone(const RemoteWindow& dialog, int control) {
    return !dialog.IsVisible() || !HasChild(dialog, control);
}

void WaitUntilGone(const RemoteWindow& dialog, int control) {
    if (!PollUntil([&] { return IsGone(dialog, control); }))
        throw std::runtime_error("The dialog stays open: " + dialog.Title());
}

// The window manager moves a new box to its place: a click at the place before may hit another
// button.
void WaitUntilStill(const RemoteWindow& dialog) {
    RECT place{};
    static_cast<void>(PollUntilItStays([&] {
        const RECT now = dialog.Bounds();
        const bool isStill = EqualRect(&now, &place) != FALSE;
        place = now;
        return isStill && dialog.FocusedChild() != nullptr;
    }));
}

void Press(const RemoteWindow& dialog, int button) {
    PostMessageW(dialog.Handle(), WM_COMMAND, static_cast<WPARAM>(button), 0);
}

RemoteWindow WaitForFileDialog(const RemoteWindow& owner) {
    return WaitForPopup(owner, L"#32770", kFileName);
}

// The dialog fills its own name in for a moment after it is there: so the name is entered until it
// stays.
void SetFileName(const RemoteWindow& dialog, const std::string& path) {
    const std::wstring name = ToUtf16(path);
    const bool entered = PollUntilItStays([&] {
        const bool isEntered = dialog.Child(kFileName).Text() == path;
        if (!isEntered)
            SendDlgItemMessageW(dialog.Handle(), kFileName, WM_SETTEXT, 0,
                                reinterpret_cast<LPARAM>(name.c_str()));
        return isEntered;
    });
    if (!entered)
        throw std::runtime_error("The dialog does not take the name");
}

std::string SettledFileName(const RemoteWindow& dialog) {
    std::string name;
    static_cast<void>(PollUntilItStays([&] {
        const std::string before = std::exchange(name, dialog.Child(kFileName).Text());
        return name == before;
    }));
    return name.substr(name.rfind('\\') + 1);
}

std::string FolderOf(const RemoteWindow& dialog) {
    const RemoteMemory memory(dialog.Handle());
    SendMessageW(dialog.Handle(), CDM_GETFOLDERPATH, RemoteMemory::kTextCharacters,
                 reinterpret_cast<LPARAM>(memory.TextAddress()));
    return ToUtf8(memory.Text());
}

std::vector<std::string> KindsOf(const RemoteWindow& dialog) {
    const HWND box = dialog.Child(kKinds).Handle();
    std::vector<std::string> kinds;
    for (LRESULT index = 0; index < SendMessageW(box, CB_GETCOUNT, 0, 0); ++index) {
        const auto row = static_cast<WPARAM>(index);
        std::wstring kind(static_cast<std::size_t>(SendMessageW(box, CB_GETLBTEXTLEN, row, 0)) + 1,
                          L'\0');
        kind.resize(static_cast<std::size_t>(
            SendMessageW(box, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(kind.data()))));
        kinds.push_back(ToUtf8(kind));
    }
    return kinds;
}

} // namespace

RemoteDialogs::Message RemoteDialogs::ReadMessageBox(const RemoteWindow& owner) {
    const RemoteWindow dialog = WaitForPopup(owner, L"#32770", kMessageText);
    return {dialog.Title(), dialog.Child(kMessageText).Text()};
}

RemoteDialogs::Message RemoteDialogs::AnswerMessageBox(const RemoteWindow& owner, int button) {
    const RemoteWindow dialog = WaitForPopup(owner, L"#32770", kMessageText);
    Message message{dialog.Title(), dialog.Child(kMessageText).Text()};
    WaitUntilStill(dialog);
    if (!ActUntil([&] { dialog.Child(button).Click(); },
                  [&] { return IsGone(dialog, kMessageText); }))
        throw std::runtime_error("The message box stays open: " + message.text);
    return message;
}

RemoteDialogs::FileDialog RemoteDialogs::ReadFileDialog(const RemoteWindow& owner) {
    const RemoteWindow dialog = WaitForFileDialog(owner);
    return {dialog.Title(), FolderOf(dialog), SettledFileName(dialog), KindsOf(dialog)};
}

void RemoteDialogs::EnterFileName(const RemoteWindow& owner, const std::string& path) {
    const RemoteWindow dialog = WaitForFileDialog(owner);
    SetFileName(dialog, path);
    Press(dialog, IDOK);
    WaitUntilGone(dialog, kFileName);
}

RemoteDialogs::Message RemoteDialogs::EnterDoubtfulFileName(const RemoteWindow& owner,
                                                            const std::string& path, int button) {
    const RemoteWindow dialog = WaitForFileDialog(owner);
    SetFileName(dialog, path);
    Press(dialog, IDOK);
    Message message = AnswerMessageBox(dialog, button);
    if (button == IDYES)
        WaitUntilGone(dialog, kFileName);
    return message;
}

void RemoteDialogs::CancelFileDialog(const RemoteWindow& owner) {
    const RemoteWindow dialog = WaitForFileDialog(owner);
    Press(dialog, IDCANCEL);
    WaitUntilGone(dialog, kFileName);
}

std::string RemoteDialogs::AnswerColorDialog(const RemoteWindow& owner,
                                             const std::optional<RedGreenBlue>& color) {
    const RemoteWindow dialog = WaitForPopup(owner, L"#32770", kFirstColorPart);
    const std::string title = dialog.Title();
    if (color) {
        int part = kFirstColorPart;
        for (const int value : {color->red, color->green, color->blue})
            SendDlgItemMessageW(dialog.Handle(), part++, WM_SETTEXT, 0,
                                reinterpret_cast<LPARAM>(std::to_wstring(value).c_str()));
    }
    Press(dialog, color ? IDOK : IDCANCEL);
    WaitUntilGone(dialog, kFirstColorPart);
    return title;
}

std::string RemoteDialogs::CancelInputBox(const RemoteWindow& owner) {
    const RemoteWindow dialog = WaitForPopup(owner, L"InputBox", InputBoxControls::Input);
    std::string prompt = dialog.Child(InputBoxControls::Prompt).Text();
    if (!PollUntil([&] {
            return dialog.FocusedChild() == dialog.Child(InputBoxControls::Input).Handle();
        }))
        throw std::runtime_error("The input box has no focus");
    RealInput::PressKey(VK_ESCAPE);
    WaitUntilGone(dialog, InputBoxControls::Input);
    return prompt;
}

RemoteDialogs::Question RemoteDialogs::AnswerInputBox(const RemoteWindow& owner,
                                                      const std::string& answer) {
    const RemoteWindow dialog = WaitForPopup(owner, L"InputBox", InputBoxControls::Input);
    const RemoteWindow input = dialog.Child(InputBoxControls::Input);
    Question question{dialog.Child(InputBoxControls::Prompt).Text(), input.Text()};
    if (!PollUntil([&] { return dialog.FocusedChild() == input.Handle(); }))
        throw std::runtime_error("The input box has no focus");
    RealInput::TypeText(ToUtf16(answer));
    if (!PollUntil([&] { return input.Text() == answer; }))
        throw std::runtime_error("The input box holds " + input.Text());
    RealInput::PressKey(VK_RETURN);
    WaitUntilGone(dialog, InputBoxControls::Input);
    return question;
}
