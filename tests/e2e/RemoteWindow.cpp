#include "tests/e2e/RemoteWindow.h"

#include "platform/Utf16.h"
#include "tests/e2e/RealInput.h"
#include "tests/platform/PollUntil.h"

#include <array>
#include <stdexcept>

namespace {

struct WindowSearch {
    const wchar_t* className;
    DWORD process;
    HWND found;
};

BOOL CALLBACK CompareWindow(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    const bool fits = process == search.process && IsWindowVisible(window) &&
                      RemoteWindow(window).ClassName() == search.className;
    if (fits)
        search.found = window;
    return fits ? FALSE : TRUE;
}

} // namespace

RemoteWindow RemoteWindow::WaitFor(const wchar_t* className, DWORD process) {
    WindowSearch search{className, process, nullptr};
    const bool found = PollUntil([&] {
        EnumWindows(CompareWindow, reinterpret_cast<LPARAM>(&search));
        return search.found != nullptr;
    });
    if (!found)
        throw std::runtime_error("No window of class " + ToUtf8(className));
    return RemoteWindow(search.found);
}

bool RemoteWindow::IsPainted() const {
    const auto lookAt = [](HWND window, LPARAM parameter) -> BOOL {
        auto& painted = *reinterpret_cast<bool*>(parameter);
        painted = painted && GetUpdateRect(window, nullptr, FALSE) == FALSE;
        return painted ? TRUE : FALSE;
    };
    bool painted = true;
    if (lookAt(handle_, reinterpret_cast<LPARAM>(&painted)) != FALSE)
        EnumChildWindows(handle_, lookAt, reinterpret_cast<LPARAM>(&painted));
    return painted;
}

std::wstring RemoteWindow::ClassName() const {
    std::array<wchar_t, 256> name{};
    GetClassNameW(handle_, name.data(), static_cast<int>(name.size()));
    return name.data();
}

std::string RemoteWindow::Text() const {
    const auto length = static_cast<std::size_t>(SendMessageW(handle_, WM_GETTEXTLENGTH, 0, 0));
    std::wstring text(length + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(handle_, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return ToUtf8(text);
}

std::string RemoteWindow::Title() const {
    std::array<wchar_t, 1024> title{};
    GetWindowTextW(handle_, title.data(), static_cast<int>(title.size()));
    return ToUtf8(title.data());
}

RemoteWindow RemoteWindow::Child(int id) const {
    WindowSearch search{nullptr, static_cast<DWORD>(id), nullptr};
    EnumChildWindows(
        handle_,
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<WindowSearch*>(parameter);
            if (GetDlgCtrlID(window) != static_cast<int>(wanted.process))
                return TRUE;
            wanted.found = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    if (search.found == nullptr)
        throw std::runtime_error("No control " + std::to_string(id));
    return RemoteWindow(search.found);
}

void RemoteWindow::Place(int left, int top, int width, int height) const {
    SetWindowPos(handle_, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

POINT RemoteWindow::ToScreen(POINT client) const {
    ClientToScreen(handle_, &client);
    return client;
}

RECT RemoteWindow::Bounds() const {
    RECT bounds{};
    GetWindowRect(handle_, &bounds);
    return bounds;
}

void RemoteWindow::Maximise() const {
    PostMessageW(handle_, WM_SYSCOMMAND, SC_MAXIMIZE, 0);
}

void RemoteWindow::Restore() const {
    PostMessageW(handle_, WM_SYSCOMMAND, SC_RESTORE, 0);
}

POINT RemoteWindow::Centre() const {
    return CentreOf(Bounds());
}

COLORREF RemoteWindow::ColorAt(POINT client) const {
    const POINT at = ToScreen(client);
    const HDC screen = GetDC(nullptr);
    const COLORREF color = GetPixel(screen, at.x, at.y);
    ReleaseDC(nullptr, screen);
    return color;
}

void RemoteWindow::Click() const {
    RealInput::Click(Centre());
}

void RemoteWindow::Close() const {
    PostMessageW(handle_, WM_SYSCOMMAND, SC_CLOSE, 0);
}

RemoteWindow RemoteWindow::ActivePopup() const {
    return RemoteWindow(GetLastActivePopup(handle_));
}

GUITHREADINFO RemoteWindow::ThreadInfo() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(handle_, nullptr), &info);
    return info;
}

bool RemoteWindow::HasMenuOpen() const {
    return (ThreadInfo().flags & GUI_INMENUMODE) != 0;
}

HWND RemoteWindow::FocusedChild() const {
    return ThreadInfo().hwndFocus;
}

bool RemoteWindow::HoldsMouse() const {
    return ThreadInfo().hwndCapture != nullptr;
}

POINT CentreOf(const RECT& rectangle) {
    return {(rectangle.left + rectangle.right) / 2, (rectangle.top + rectangle.bottom) / 2};
}
