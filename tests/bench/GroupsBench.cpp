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

// Measures how long a library of many groups takes from being opened to its painted tree, beside
// the same colors in one group, in the same run and in turn:
//
//     groups_bench.exe [GROUPS] [REPETITIONS]
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

// Nine values and the end of a line, in the code page of the file.
const std::string kRest =
    "\xF7\x31\xF7\x32\xF7\x33\xF7\x34\xF7\x35\xF7\x36\xF7\x37\xF7\x38\xF7\x39\"\r\n";

// As a file holds it.
std::string Library(int colors, int groups) {
    std::string text = "\"D#Library=0D:" + std::to_string(colors + groups) + "\"\r\n";
    for (int group = 1; group <= groups; ++group) {
        const std::string number = std::to_string(group);
        text += "\"G#Group " + number + "=0DG" + number + "\"\r\n";
    }
    for (int color = 0; color < colors; ++color)
        text += "\"E#Color=0DG" + std::to_string(color % groups + 1) + ":Color" + kRest;
    return text;
}

// In a program of its own.
double LoadTime(const ScratchFolder& folder, const std::string& name, int groups) {
    FakeRegistry registry;
    const Win32AnsiCodePage codePage;
    RealProgram program(registry, folder.Path(), codePage);
    program.application.Start();
    Win32EventPump pump;
    pump.ProcessPendingEvents();
    const auto begin = Clock::now();
    program.application.MainWindowEvents().frame.FilesDropped({folder.File(name)});
    pump.ProcessPendingEvents();
    const double time = Milliseconds(Clock::now() - begin).count();
    const LRESULT nodes =
        SendDlgItemMessageW(program.main.Handle(), IDC_tvColor, TVM_GETCOUNT, 0, 0);
    if (nodes != groups + 1)
        throw std::runtime_error("The library was not read");
    return time;
}

void Run(int groups, int repetitions) {
    const ScratchFolder folder;
    folder.Write("one.tnt", Library(groups, 1));
    folder.Write("many.tnt", Library(groups, groups));
    std::vector<double> timesOfOne;
    std::vector<double> timesOfMany;
    for (int i = 0; i < repetitions; ++i) {
        timesOfOne.push_back(LoadTime(folder, "one.tnt", 1));
        timesOfMany.push_back(LoadTime(folder, "many.tnt", groups));
    }
    std::printf("| library of %d colors | median, ms |\n| --- | --- |\n", groups);
    std::printf("| in one group | %.1f |\n", Median(timesOfOne));
    std::printf("| in %d groups | %.1f |\n", groups, Median(timesOfMany));
    std::printf("\nMany groups / one group: %.2f\n", Median(timesOfMany) / Median(timesOfOne));
}

} // namespace

int main(int count, char** arguments) {
    const int groups = count > 1 ? std::atoi(arguments[1]) : 8000;
    const int repetitions = count > 2 ? std::atoi(arguments[2]) : 5;
    if (groups < 2 || repetitions < 1) {
        std::printf("usage: groups_bench [GROUPS] [REPETITIONS]\n");
        return 2;
    }
    try {
        Run(groups, repetitions);
        return 0;
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
