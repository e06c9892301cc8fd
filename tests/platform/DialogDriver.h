#pragma once

#include <functional>
#include <string>
#include <thread>
#include <windows.h>

// Works one dialog from a second thread while the test's own thread shows it.
class DialogDriver {
public:
    // work is called once, with the window of this process that has the title.
    DialogDriver(std::wstring title, std::function<void(HWND)> work);
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;
    ~DialogDriver();

private:
    std::thread thread_;
};

[[nodiscard]] std::wstring TextOfControl(HWND dialog, int id);
void Press(HWND dialog, int button); // posted: the dialog ends in its own time
