#include "tests/platform/DialogDriver.h"

#include "tests/platform/PollUntil.h"

#include <gtest/gtest.h>

namespace {

HWND VisibleDialog(const std::wstring& title) {
    HWND window = FindWindowW(L"#32770", title.c_str());
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId() && IsWindowVisible(window) ? window : nullptr;
}

void Work(const std::wstring& title, const std::function<void(HWND)>& work) {
    HWND dialog = nullptr;
    if (PollUntil([&] { return (dialog = VisibleDialog(title)) != nullptr; }))
        work(dialog);
    else
        ADD_FAILURE() << "the dialog did not appear";
}

} // namespace

DialogDriver::DialogDriver(std::wstring title, std::function<void(HWND)> work)
    : thread_([title = std::move(title), work = std::move(work)] { Work(title, work); }) {}

DialogDriver::~DialogDriver() {
    thread_.join();
}

std::wstring TextOfControl(HWND dialog, int id) {
    std::wstring text(1024, L'\0');
    text.resize(static_cast<std::size_t>(SendDlgItemMessageW(
        dialog, id, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

void Press(HWND dialog, int button) {
    PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
}
