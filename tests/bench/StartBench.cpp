#include "tests/bench/Median.h"
#include "platform/Handles.h"
#include "platform/KernelHandle.h"
#include "platform/Utf16.h"
#include "resources/controls.h"
#include "tests/e2e/RemoteWindow.h"
#include "tests/e2e/RunningProgram.h"
#include "tests/platform/PollUntil.h"
#include "tests/platform/SettingsKey.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <vector>

// Measures the start of the program from outside, beside the platform's own text editor and a
// program without a window, all in the same run and in turn:
//
//     start_bench.exe PROGRAM_FOLDER [REPETITIONS]
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

struct Phase {
    const char* name;
    std::vector<double>
        times; // milliseconds since the process was started, one for each repetition
};

// The screen as it was before the program was started.
class ScreenPicture {
public:
    ScreenPicture() : screen_(GetDC(nullptr)), memory_(CreateCompatibleDC(screen_)) {
        const int width = GetSystemMetrics(SM_CXSCREEN);
        const int height = GetSystemMetrics(SM_CYSCREEN);
        picture_ = BitmapHandle(CreateCompatibleBitmap(screen_, width, height));
        SelectObject(memory_.Get(), picture_.Get());
        BitBlt(memory_.Get(), 0, 0, width, height, screen_, 0, 0, SRCCOPY | CAPTUREBLT);
    }
    ScreenPicture(const ScreenPicture&) = delete;
    ScreenPicture& operator=(const ScreenPicture&) = delete;
    ~ScreenPicture() { ReleaseDC(nullptr, screen_); }

    // Whether something else stands there now.
    [[nodiscard]] bool HasChangedAt(POINT at) const {
        return GetPixel(screen_, at.x, at.y) != GetPixel(memory_.Get(), at.x, at.y);
    }

private:
    HDC screen_;
    BitmapHandle picture_;
    MemoryDevice memory_;
};

// A top-level window of the process, shown or not; null: there is none yet.
HWND WindowOf(const wchar_t* className, DWORD process) {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, className, nullptr)) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == process)
            return window;
    }
    return nullptr;
}

// One start, watched from outside.
class WatchedStart {
public:
    WatchedStart(const std::string& commandLine, std::vector<Phase>& phases)
        : phases_(phases), begin_(Clock::now()), program_(commandLine) {}

    void Until(std::size_t phase, const std::function<bool()>& isReached) {
        if (!PollUntil(isReached))
            throw std::runtime_error(phases_[phase].name);
        phases_[phase].times.push_back(Milliseconds(Clock::now() - begin_).count());
    }
    [[nodiscard]] DWORD Id() const { return program_.Id(); }
    void WaitForEnd() const {
        if (!program_.WaitForExitCode())
            throw std::runtime_error("does not end");
    }

    // Something of its own stands in the middle of the control, and it waits for its user.
    [[nodiscard]] bool IsPainted(HWND control) const {
        RECT bounds{};
        GetWindowRect(control, &bounds);
        return before_.HasChangedAt(CentreOf(bounds)) && WaitsForInput();
    }

private:
    [[nodiscard]] bool WaitsForInput() const {
        const KernelHandle process(
            OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION, FALSE, program_.Id()));
        return WaitForInputIdle(process.Get(), 0) == 0;
    }

    ScreenPicture before_;
    std::vector<Phase>& phases_;
    Clock::time_point begin_;
    RunningProgram program_;
};

void MeasureFloor(std::vector<Phase>& phases) {
    WatchedStart start(R"(C:\windows\system32\hostname.exe)", phases);
    start.WaitForEnd();
    start.Until(0, [] { return true; });
}

void MeasureEditor(std::vector<Phase>& phases) {
    WatchedStart start(R"(C:\windows\system32\notepad.exe)", phases);
    HWND window = nullptr;
    start.Until(0, [&] { return (window = WindowOf(L"Notepad", start.Id())) != nullptr; });
    start.Until(1, [&] { return IsWindowVisible(window) != FALSE; });
    HWND text = nullptr;
    start.Until(2, [&] {
        text = FindWindowExW(window, nullptr, L"Edit", nullptr);
        return text != nullptr && start.IsPainted(text);
    });
    RemoteWindow(window).Close();
    start.WaitForEnd();
}

void MeasureProgram(const std::string& program, std::vector<Phase>& phases) {
    WatchedStart start("\"" + program + "\"", phases);
    HWND window = nullptr;
    start.Until(0, [&] { return (window = WindowOf(L"frmMain", start.Id())) != nullptr; });
    start.Until(1, [&] { return GetDlgItem(window, IDC_lblDrag) != nullptr; });
    start.Until(2, [&] { return IsWindowVisible(window) != FALSE; });
    const HWND tree = RemoteWindow(window).Child(IDC_tvColor).Handle();
    const HWND list = RemoteWindow(window).Child(IDC_lvColor).Handle();
    start.Until(3, [&] { return start.IsPainted(tree) && start.IsPainted(list); });
    if (SendMessageW(tree, TVM_GETCOUNT, 0, 0) == 0)
        throw std::runtime_error("The library was not loaded");
    RemoteWindow(window).Close();
    start.WaitForEnd();
}

void Print(const char* title, const std::vector<Phase>& phases) {
    for (const Phase& phase : phases) {
        const auto [least, most] = std::minmax_element(phase.times.begin(), phase.times.end());
        std::printf("| %s | %s | %.0f | %.0f - %.0f |\n", title, phase.name, Median(phase.times),
                    *least, *most);
    }
}

void Measure(const std::string& folder, int repetitions) {
    const SettingsKey settings;
    settings.SetText("", "DefaultColorFile", folder + "\\samples\\materials.tnt");
    std::vector<Phase> floor{{"started and ended", {}}};
    std::vector<Phase> editor{{"window made", {}}, {"window shown", {}}, {"painted", {}}};
    std::vector<Phase> program{{"main window made", {}},
                               {"all its controls made", {}},
                               {"library loaded, window shown", {}},
                               {"painted", {}}};
    for (int repetition = -2; repetition < repetitions; ++repetition) {
        MeasureFloor(floor);
        MeasureEditor(editor);
        MeasureProgram(folder + "\\tnt4swx.exe", program);
        if (repetition < 0) // the first ones fill the caches
            for (auto* phases : {&floor, &editor, &program})
                for (Phase& phase : *phases)
                    phase.times.clear();
    }
    std::printf(
        "| program | reached | median, ms | least - most, ms |\n| --- | --- | --- | --- |\n");
    Print("without a window", floor);
    Print("text editor", editor);
    Print("tnt4swx", program);
    std::printf("\nProgram / text editor: %.2f (%d repetitions)\n",
                Median(program.back().times) / Median(editor.back().times), repetitions);
}

} // namespace

int main(int count, char** arguments) {
    if (count < 2) {
        std::printf("usage: start_bench PROGRAM_FOLDER [REPETITIONS]\n");
        return 2;
    }
    try {
        Measure(arguments[1], count > 2 ? std::atoi(arguments[2]) : 15);
        return 0;
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
