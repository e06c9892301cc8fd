// Rules: The program as a whole
#include "common/RuntimeError.h"
#include "platform/controls/TextBox.h"
#include "platform/Form.h"
#include "tests/ui/GuiObjects.h"
#include "tests/ui/RecordingErrorSink.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT kRuntimeError = WM_APP + 10;
constexpr UINT kStandardError = WM_APP + 11;
constexpr UINT kOtherError = WM_APP + 12;

class FaultyForm : public Form {
public:
    explicit FaultyForm(ErrorSink& errors)
        : Form({L"FaultyForm", L"", WS_OVERLAPPEDWINDOW, 0, nullptr, {200, 100}, {}}, errors),
          box(Add<TextBox>(ControlPlace{"txt", 100, Handle()})) {}

protected:
    MessageResult OnMessage(const WindowMessage& message) override {
        if (message.id == kRuntimeError)
            throw RuntimeError(440, "The object is gone", "GetTitle");
        if (message.id == kStandardError)
            throw std::out_of_range("standard");
        if (message.id == kOtherError)
            throw 7;
        return Form::OnMessage(message);
    }
    void OnCloseBox() override { throw RuntimeError(13, "Type mismatch"); }

public:
    TextBox& box;
};

TEST(FormErrors, ExceptionOfAMessageIsReportedAndTheFormGoesOn) {
    RecordingErrorSink errors;
    FaultyForm form(errors);
    SendMessageW(form.Handle(), kRuntimeError, 0, 0);
    SendMessageW(form.Handle(), kStandardError, 0, 0);
    SendMessageW(form.Handle(), kOtherError, 0, 0);
    EXPECT_EQ(errors.reports, (std::vector<std::string>{"The object is gone|GetTitle", "standard|",
                                                        "Unknown error|"}));
}

TEST(FormErrors, FailedCloseBoxDoesNotDestroyTheWindow) {
    RecordingErrorSink errors;
    FaultyForm form(errors);
    SendMessageW(form.Handle(), WM_CLOSE, 0, 0);
    EXPECT_NE(IsWindow(form.Handle()), FALSE);
    EXPECT_EQ(errors.reports, std::vector<std::string>{"Type mismatch|"});
}

TEST(FormErrors, ExceptionInsideAControlIsReported) {
    RecordingErrorSink errors;
    FaultyForm form(errors);
    form.box.mayType = [](char32_t) -> bool { throw RuntimeError(6, "Overflow"); };
    SendMessageW(form.box.Handle(), WM_CHAR, 'a', 0);
    EXPECT_EQ(errors.reports, std::vector<std::string>{"Overflow|"});
}

TEST(FormErrors, ExceptionOfANotificationIsReported) {
    RecordingErrorSink errors;
    FaultyForm form(errors);
    form.box.onChange = [](const std::string&) { throw RuntimeError(13, "Type mismatch"); };
    SetWindowTextW(form.box.Handle(), L"pasted");
    EXPECT_EQ(errors.reports, std::vector<std::string>{"Type mismatch|"});
}

TEST(FormErrors, NothingIsReportedWhileTheFormGoes) {
    RecordingErrorSink errors;
    {
        FaultyForm form(errors);
        ShowWindow(form.Handle(), SW_SHOW);
        SetFocus(form.box.Handle());
        form.box.onFocus = [] { throw RuntimeError(13, "Type mismatch"); };
    }
    EXPECT_TRUE(errors.reports.empty());
}

TEST(FormErrors, WindowsAndHandlesAreGivenBack) {
    RecordingErrorSink errors;
    { FaultyForm first(errors); }
    const GuiObjects before = CountGuiObjects();
    for (int time = 0; time < 20; ++time)
        FaultyForm form(errors);
    const GuiObjects after = CountGuiObjects();
    EXPECT_LE(after.gdi, before.gdi + 2);
    EXPECT_LE(after.user, before.user + 2);
}

} // namespace
