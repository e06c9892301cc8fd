#include "platform/InputBox.h"

#include "common/FittedMessage.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/TextBox.h"
#include "platform/Fonts.h"
#include "platform/Form.h"
#include "platform/InputBoxControls.h"
#include "platform/ModalDisplay.h"
#include "platform/Utf16.h"

namespace {

constexpr int kWidth = 380; // of the client area, design pixels
constexpr int kMargin = 12;
constexpr int kGap = 8;

// Nothing here calls the program's rules: there is nothing to report.
class NoErrors : public ErrorSink {
public:
    void ReportError(const RuntimeError&) noexcept override {}
};

// In the system's language, as in the system's own boxes.
const char* CancelCaption() {
    return PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_GERMAN ? "Abbrechen" : "Cancel";
}

FormDesign DesignFor(HWND owner, const std::wstring& title) {
    return {L"InputBox", title.c_str(), kDialogStyle, WS_EX_DLGMODALFRAME, owner, {400, 200}, {}};
}

class InputBox : public Form {
public:
    InputBox(HWND owner, const std::wstring& title, ErrorSink& errors)
        : Form(DesignFor(owner, title), errors) {
        ok_.SetText("OK");
        cancel_.SetText(CancelCaption());
        ok_.onClick = [this] { Finish(ToUtf16(input_.Text())); };
        cancel_.onClick = [this] { Finish({}); };
        SetDefaultButton(IDOK);
    }

    std::wstring Ask(const std::wstring& prompt, const std::wstring& preset) {
        prompt_.SetText(FittedPrompt(ToUtf8(prompt)));
        OnLayout();
        input_.SetText(ToUtf8(preset)); // a box without width would scroll its text away
        CentreOnOwner(Handle());
        const ModalDisplay display(Handle());
        input_.SelectAll();
        input_.Focus();
        ModalDisplay::Run([this] { return done_; });
        return answer_;
    }

protected:
    void OnCloseBox() override { Finish({}); }
    void OnLayout() override;

private:
    [[nodiscard]] std::string FittedPrompt(const std::string& prompt) const;
    [[nodiscard]] int PromptWidth() const { return Scale().FromDesign(kWidth - 2 * kMargin); }
    void Finish(std::wstring answer) {
        answer_ = std::move(answer);
        done_ = true;
    }

    Label& prompt_ =
        Add<Label>(ControlPlace{"lblPrompt", InputBoxControls::Prompt, Handle()}, LabelText::Plain);
    TextBox& input_ = Add<TextBox>(ControlPlace{"txtInput", InputBoxControls::Input, Handle()});
    CommandButton& ok_ =
        Add<CommandButton>(ControlPlace{"cmdOK", IDOK, Handle()}, ButtonRole::Default);
    CommandButton& cancel_ = Add<CommandButton>(ControlPlace{"cmdCancel", IDCANCEL, Handle()});
    std::wstring answer_;
    bool done_ = false;
};

// Text box and buttons stay on the screen.
std::string InputBox::FittedPrompt(const std::string& prompt) const {
    constexpr int kLinesOfBorder = 12;
    const int height = HeightOf(WorkAreaOf(GetWindow(Handle(), GW_OWNER)));
    return FittedMessage(prompt, {PromptWidth(), height - kLinesOfBorder * LineHeight(Font())},
                         [this](const std::string& text) {
                             const SIZE size = MeasureText(Font(), ToUtf16(text), PromptWidth());
                             return MessageSize{size.cx, size.cy};
                         });
}

void InputBox::OnLayout() {
    const int margin = Scale().FromDesign(kMargin);
    const int gap = Scale().FromDesign(kGap);
    const int right = margin + PromptWidth();
    const SIZE text = prompt_.TextSize(PromptWidth());
    const SIZE button = cancel_.IdealSize();
    int top = margin;
    prompt_.Place({margin, top, right, top + text.cy});
    top += text.cy + gap;
    input_.Place({margin, top, right, top + button.cy});
    top += button.cy + margin;
    cancel_.Place({right - button.cx, top, right, top + button.cy});
    const int okRight = right - button.cx - gap;
    ok_.Place({okRight - button.cx, top, okRight, top + button.cy});
    ResizeClientArea(Handle(), {right + margin, top + button.cy + margin});
}

} // namespace

std::wstring ShowInputBox(HWND owner, const std::wstring& prompt, const std::wstring& title,
                          const std::wstring& preset) {
    NoErrors errors;
    return InputBox(owner, title, errors).Ask(prompt, preset);
}
