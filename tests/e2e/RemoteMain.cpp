#include "tests/e2e/RemoteMain.h"

#include "platform/Utf16.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32PrivateProfile.h"
#include "resources/controls.h"
#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteMemory.h"
#include "tests/platform/PollUntil.h"

#include <commctrl.h>
#include <stdexcept>

RemoteTree RemoteMain::Tree() const {
    return RemoteTree(window_.Child(IDC_tvColor));
}

RemoteList RemoteMain::List() const {
    return RemoteList(window_.Child(IDC_lvColor));
}

RemoteToolbar RemoteMain::Toolbar() const {
    return RemoteToolbar(window_.Child(IDC_tlbarMain));
}

void RemoteMain::ClickButton(int command) const {
    Toolbar().Click(command);
}

void RemoteMain::ChooseFromMenu(const std::string& menu, const std::string& entry) const {
    // A window that has only just come takes keys a little later.
    const bool takesKeys = PollUntil([&] {
        SetForegroundWindow(window_.Handle());
        return GetForegroundWindow() == window_.Handle() && window_.FocusedChild() != nullptr;
    });
    if (!takesKeys)
        throw std::runtime_error("The window takes no keys");
    if (!OpenMenu(AccessKey(menu)))
        throw std::runtime_error("The menu does not open: " + menu);
    RealInput::PressKey(AccessKey(entry));
    if (!PollUntil([&] { return !window_.HasMenuOpen(); }))
        throw std::runtime_error("The menu stays open: " + menu);
}

// Keys may be lost while the focus comes back from a box that has just gone.
bool RemoteMain::OpenMenu(WORD accessKey) const {
    return ActUntil(
        [&] {
            if (GetForegroundWindow() != window_.Handle())
                SetForegroundWindow(window_.Handle());
            RealInput::PressWithAlt(accessKey);
        },
        [&] { return window_.HasMenuOpen(); });
}

// The character behind the "&" of the caption; its virtual key is its capital letter.
WORD RemoteMain::AccessKey(const std::string& menuName) const {
    const std::string caption = Win32PrivateProfile().GetString(
        "frmMain", menuName + ".Caption", "",
        Win32AnsiCodePage().Encode(programFolder_ + "\\tntlng_us.ini").bytes, 256);
    const std::size_t mark = caption.find('&');
    if (mark == std::string::npos || mark + 1 == caption.size())
        throw std::runtime_error("No access key: " + menuName);
    return LOBYTE(VkKeyScanW(static_cast<wchar_t>(caption[mark + 1])));
}

RemoteWindow RemoteMain::ValueBox(std::size_t index) const {
    return window_.Child(IDC_txtActiveColor + static_cast<int>(index));
}

RemoteWindow RemoteMain::Slider(std::size_t index) const {
    return window_.Child(IDC_sldActiveColor + static_cast<int>(index));
}

std::vector<std::string> RemoteMain::ValueTexts() const {
    std::vector<std::string> texts;
    for (std::size_t index = 0; index < kValues; ++index)
        texts.push_back(ValueBox(index).Text());
    return texts;
}

std::vector<std::string> RemoteMain::SliderPositions() const {
    std::vector<std::string> positions;
    for (std::size_t index = 0; index < kValues; ++index)
        positions.push_back(std::to_string(SendMessageW(Slider(index).Handle(), TBM_GETPOS, 0, 0)));
    return positions;
}

std::string RemoteMain::ColorName() const {
    return window_.Child(IDC_lblActiveColorName).Text();
}

std::string RemoteMain::SwatchCaption() const {
    return window_.Child(IDC_lblActiveColorSmall).Text();
}

bool RemoteMain::IsLargeEditorShown() const {
    return window_.Child(IDC_fraShowColor).IsVisible();
}

RemoteWindow RemoteMain::Swatch() const {
    return window_.Child(IsLargeEditorShown() ? IDC_lblActiveColor : IDC_lblActiveColorSmall);
}

std::string RemoteMain::InfoText() const {
    const RemoteWindow bar = window_.Child(IDC_stbarMain);
    const RemoteMemory memory(bar.Handle());
    SendMessageW(bar.Handle(), SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(memory.TextAddress()));
    return ToUtf8(memory.Text());
}

void RemoteMain::ClearInfoText() const {
    const RemoteWindow bar = window_.Child(IDC_stbarMain);
    const RemoteMemory memory(bar.Handle()); // new memory holds the empty text
    SendMessageW(bar.Handle(), SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(memory.TextAddress()));
}

void RemoteMain::TypeValue(std::size_t index, const std::string& digits) const {
    const RemoteWindow box = ValueBox(index);
    const auto hasFocus = [&] { return box.FocusedChild() == box.Handle(); };
    if (!ActUntil([&] { box.Click(); }, hasFocus)) // the layout may just be changing
        throw std::runtime_error("The value box takes no focus");
    RealInput::TypeText(ToUtf16(digits));
}

void RemoteMain::DragSlider(std::size_t index, int pixels) const {
    const RemoteWindow slider = Slider(index);
    const RemoteMemory memory(slider.Handle());
    RECT thumb{};
    memory.Send(TBM_GETTHUMBRECT, 0, thumb);
    const POINT from = slider.ToScreen(CentreOf(thumb));
    RealInput::Drag(from, {from.x + pixels, from.y});
}
