#pragma once

#include <string>
#include <windows.h>

// A window of another process.  Texts are UTF-8.
class RemoteWindow {
public:
    RemoteWindow() = default;
    explicit RemoteWindow(HWND handle) : handle_(handle) {}

    // The visible top-level window of the class in the process; waits for it.  Throws
    // std::runtime_error when it does not come.
    [[nodiscard]] static RemoteWindow WaitFor(const wchar_t* className, DWORD process);

    [[nodiscard]] HWND Handle() const noexcept { return handle_; }
    [[nodiscard]] bool Exists() const { return IsWindow(handle_) != FALSE; }
    [[nodiscard]] bool IsVisible() const { return IsWindowVisible(handle_) != FALSE; }
    [[nodiscard]] bool IsPainted() const; // with everything in it
    [[nodiscard]] std::wstring ClassName() const;
    [[nodiscard]] std::string Text() const; // WM_GETTEXT
    [[nodiscard]] std::string Title() const;

    // Throws std::runtime_error when there is no such child.
    [[nodiscard]] RemoteWindow Child(int id) const;

    void Place(int left, int top, int width, int height) const;
    [[nodiscard]] RECT Bounds() const; // on the screen
    void Maximise() const;             // as its button does
    void Restore() const;
    [[nodiscard]] bool IsMaximised() const { return IsZoomed(handle_) != FALSE; }
    [[nodiscard]] POINT ToScreen(POINT client) const;
    [[nodiscard]] POINT Centre() const;                 // on the screen
    [[nodiscard]] COLORREF ColorAt(POINT client) const; // that the screen shows there
    void Click() const;                                 // into the middle, with the mouse
    void Close() const;                                 // as the close box does; returns at once

    // The window that the window's thread shows on top of it; the window itself when there is none.
    [[nodiscard]] RemoteWindow ActivePopup() const;
    [[nodiscard]] bool HasMenuOpen() const;
    [[nodiscard]] HWND FocusedChild() const;
    [[nodiscard]] bool HoldsMouse() const; // a button is down in one of the thread's windows

private:
    [[nodiscard]] GUITHREADINFO ThreadInfo() const;

    HWND handle_ = nullptr;
};

// The middle of a rectangle.
[[nodiscard]] POINT CentreOf(const RECT& rectangle);
