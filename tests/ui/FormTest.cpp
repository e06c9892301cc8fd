// Rules: The program as a whole
#include "platform/Form.h"

#include "platform/controls/TextBox.h"
#include "tests/ui/RecordingErrorSink.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

constexpr const wchar_t* kName = L"PlainForm";
constexpr int kControl = 100;

class PlainForm : public Form {
public:
    explicit PlainForm(ErrorSink& errors)
        : Form({kName, L"", WS_OVERLAPPEDWINDOW, 0, nullptr, {200, 100}, {}}, errors) {}
};

// Cannot be built to its end.
class FaultyControl : public Control {
public:
    FaultyControl(ControlHost& host, const ControlPlace& place)
        : Control(host, {"TextBox", L"EDIT", "Text"}, place, 0) {
        throw std::runtime_error("no picture");
    }
};

WNDPROC procedureBefore = nullptr;

LRESULT CALLBACK OtherProcedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcW(procedureBefore, window, id, wParam, lParam);
}

bool IsRegistered() {
    WNDCLASSEXW known{};
    known.cbSize = sizeof known;
    return GetClassInfoExW(GetModuleHandleW(nullptr), kName, &known) != FALSE;
}

TEST(FormTest, IsKnownByItsWindowAndItsPartsAlsoBehindTheProcedureOfAnotherProgram) {
    RecordingErrorSink errors;
    PlainForm form(errors);
    const TextBox& box = form.Add<TextBox>(ControlPlace{"txt", kControl, form.Handle()});
    procedureBefore = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
        form.Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&OtherProcedure)));
    EXPECT_EQ(Form::FromWindow(form.Handle()), &form);
    EXPECT_EQ(Form::FromWindow(box.Handle()), &form);
    SetWindowLongPtrW(form.Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedureBefore));
    EXPECT_EQ(Form::FromWindow(GetDesktopWindow()), nullptr);
    EXPECT_EQ(Form::FromWindow(nullptr), nullptr);
}

TEST(FormTest, ControlThatCannotBeBuiltLeavesNothingBehind) {
    RecordingErrorSink errors;
    PlainForm form(errors);
    const ControlPlace place{"txt", kControl, form.Handle()};
    EXPECT_THROW(form.Add<FaultyControl>(place), std::runtime_error);
    EXPECT_EQ(GetDlgItem(form.Handle(), kControl), nullptr);
    form.Add<TextBox>(place);
    EXPECT_NE(GetDlgItem(form.Handle(), kControl), nullptr);
    EXPECT_TRUE(errors.reports.empty());
}

TEST(FormTest, ControlWhoseWindowHasGoneLetsGoOfIt) {
    RecordingErrorSink errors;
    PlainForm form(errors);
    const TextBox& box = form.Add<TextBox>(ControlPlace{"txt", kControl, form.Handle()});
    DestroyWindow(box.Handle());
    EXPECT_EQ(box.Handle(), nullptr);
}

TEST(FormTest, WindowClassGoesWithTheLastFormOfIt) {
    RecordingErrorSink errors;
    {
        const PlainForm first(errors);
        { const PlainForm second(errors); }
        EXPECT_TRUE(IsRegistered());
    }
    EXPECT_FALSE(IsRegistered());
}

} // namespace
