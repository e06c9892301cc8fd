#include "tests/bench/Median.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32EventPump.h"
#include "resources/controls.h"
#include "tests/fakes/FakeRegistry.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/ui/RealProgram.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

// Measures a page of the list whose rows show their colors, beside the same page with the common
// picture, in the same run and in turn, in each view of a group of many colors:
//
//     list_bench.exe [COLORS] [PAGES] [REPETITIONS]
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

struct View {
    const char* name;
    int command;
};

constexpr View kViews[] = {{"large icons", IDM_mnuViewColorLargeIcons},
                           {"small icons", IDM_mnuViewColorSmallIcons},
                           {"list", IDM_mnuViewColorList},
                           {"details", IDM_mnuViewColorDetails}};

// As a file holds it: each color is another one.
std::string Library(int colors) {
    std::string text =
        "\"D#Library=0D:" + std::to_string(colors + 1) + "\"\r\n\"G#Group=0DG1\"\r\n";
    for (int color = 0; color < colors; ++color) {
        text += "\"E#Color=0DG1:Color " + std::to_string(color);
        for (const int value : {color % 256, color / 256 % 256, color / 65536, 60, 70, color % 101,
                                color % 97, color % 89, color % 7})
            text += "\xF7" + std::to_string(value);
        text += "\"\r\n";
    }
    return text;
}

class Bench {
public:
    explicit Bench(int colors) {
        folder_.Write("many.tnt", Library(colors));
        program_.application.Start();
        program_.application.MainWindowEvents().frame.FilesDropped({folder_.File("many.tnt")});
        pump_.ProcessPendingEvents();
        list_ = GetDlgItem(program_.main.Handle(), IDC_lvColor);
        if (SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0) != colors)
            throw std::runtime_error("The library was not read");
    }

    // From the first row on, each page with rows that were not shown before: once with the common
    // picture, once with the colors, and so on.
    void Measure(const View& view, int pages, int repetitions) {
        program_.Run(view.command);
        std::vector<double> common;
        std::vector<double> colored;
        for (int repetition = 0; repetition < repetitions; ++repetition) {
            ShowPages(pages, common);
            program_.Run(IDM_mnuViewColorsInList);
            ShowPages(pages, colored);
            program_.Run(IDM_mnuViewColorsInList);
        }
        std::printf("| %s | %.2f | %.2f | %.2f |\n", view.name, Median(common), Median(colored),
                    Median(colored) / Median(common));
    }

private:
    void ShowPages(int pages, std::vector<double>& times) {
        Scroll(SB_TOP);
        pump_.ProcessPendingEvents();
        for (int page = 0; page < pages; ++page) {
            const auto begin = Clock::now();
            Scroll(SB_PAGEDOWN);
            RedrawWindow(list_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            times.push_back(Milliseconds(Clock::now() - begin).count());
            pump_.ProcessPendingEvents();
        }
    }
    // The list view scrolls sideways, the others do not.
    void Scroll(int code) const {
        for (const UINT message : {UINT{WM_VSCROLL}, UINT{WM_HSCROLL}})
            SendMessageW(list_, message, static_cast<WPARAM>(code), 0);
    }

    ScratchFolder folder_;
    FakeRegistry registry_;
    Win32AnsiCodePage codePage_;
    RealProgram program_{registry_, folder_.Path(), codePage_};
    Win32EventPump pump_;
    HWND list_ = nullptr;
};

void Run(int colors, int pages, int repetitions) {
    Bench bench(colors);
    std::printf("| a page of %d colors | common picture, ms | colors, ms | ratio |\n", colors);
    std::printf("| --- | --- | --- | --- |\n");
    for (const View& view : kViews)
        bench.Measure(view, pages, repetitions);
}

} // namespace

int main(int count, char** arguments) {
    const int colors = count > 1 ? std::atoi(arguments[1]) : 100000;
    const int pages = count > 2 ? std::atoi(arguments[2]) : 60;
    const int repetitions = count > 3 ? std::atoi(arguments[3]) : 5;
    if (colors < 1 || pages < 1 || repetitions < 1) {
        std::printf("usage: list_bench [COLORS] [PAGES] [REPETITIONS]\n");
        return 2;
    }
    try {
        Run(colors, pages, repetitions);
        return 0;
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
