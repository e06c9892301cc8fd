#include "tests/bench/Median.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32EventPump.h"
#include "resources/controls.h"
#include "tests/fakes/FakeRegistry.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/ui/RealProgram.h"

#include <algorithm>
#include <chrono>
#include <commctrl.h>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

// Measures a step of a slider, from its message to the painted large color field, with the preview
// of the material beside the plain color, in the same run and in turn:
//
//     preview_bench.exe [STEPS] [REPETITIONS]
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int kMoved[] = {2, 4, 7}; // blue, diffuse, transparency

class Bench {
public:
    Bench() {
        program_.application.Start();
        program_.Run(IDM_mnuViewHugeColorDialog);
        frame_ = GetDlgItem(program_.main.Handle(), IDC_fraShowColor);
        field_ = GetDlgItem(frame_, IDC_lblActiveColor);
        // The size that is measured, whatever the resolution is.
        SetWindowPos(field_, nullptr, 0, 0, 202, 202, SWP_NOMOVE | SWP_NOZORDER);
        pump_.ProcessPendingEvents();
    }

    void Measure(int steps, int repetitions) {
        std::vector<double> plain;
        std::vector<double> preview;
        for (int repetition = 0; repetition < repetitions; ++repetition) {
            Move(steps, plain);
            Toggle();
            Move(steps, preview);
            Toggle();
        }
        std::printf("| a step of a slider | median, ms | longest, ms |\n| --- | --- | --- |\n");
        std::printf("| plain color | %.2f | %.2f |\n", Median(plain),
                    *std::ranges::max_element(plain));
        std::printf("| preview | %.2f | %.2f |\n", Median(preview),
                    *std::ranges::max_element(preview));
    }

private:
    // The command lays the window out; the field has its size again.
    void Toggle() {
        program_.Run(IDM_mnuViewMaterialPreview);
        SetWindowPos(field_, nullptr, 0, 0, 202, 202, SWP_NOMOVE | SWP_NOZORDER);
        UpdateWindow(field_);
        pump_.ProcessPendingEvents();
    }
    void Move(int steps, std::vector<double>& times) {
        for (const int value : kMoved)
            for (int step = 1; step <= steps; ++step) {
                const HWND slider = GetDlgItem(frame_, IDC_sldActiveColor + value);
                SendMessageW(slider, TBM_SETPOS, TRUE, step % 101);
                const auto begin = Clock::now();
                SendMessageW(frame_, WM_HSCROLL, MAKEWPARAM(TB_THUMBTRACK, step % 101),
                             reinterpret_cast<LPARAM>(slider));
                UpdateWindow(field_);
                GdiFlush();
                times.push_back(Milliseconds(Clock::now() - begin).count());
                pump_.ProcessPendingEvents();
            }
    }

    ScratchFolder folder_;
    FakeRegistry registry_;
    Win32AnsiCodePage codePage_;
    RealProgram program_{registry_, folder_.Path(), codePage_};
    Win32EventPump pump_;
    HWND frame_ = nullptr;
    HWND field_ = nullptr;
};

} // namespace

int main(int count, char** arguments) {
    const int steps = count > 1 ? std::atoi(arguments[1]) : 200;
    const int repetitions = count > 2 ? std::atoi(arguments[2]) : 5;
    if (steps < 1 || repetitions < 1) {
        std::printf("usage: preview_bench [STEPS] [REPETITIONS]\n");
        return 2;
    }
    try {
        Bench().Measure(steps, repetitions);
        return 0;
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
