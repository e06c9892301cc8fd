#include "tests/bench/library/Reports.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

// Measures the library and its files, each beside a floor or over growing sizes, and prints tables:
//
//     library_bench [LARGEST_SIZE [REPETITIONS]]
//
// Each number is the median of the repetitions and one more.
int main(int count, char** arguments) {
    BenchSizes sizes;
    if (count > 1)
        sizes.largest = std::atoi(arguments[1]);
    if (count > 2)
        sizes.repetitions = std::atoi(arguments[2]);
    if (sizes.largest < 1000 || sizes.repetitions < 1) {
        std::printf("usage: library_bench [LARGEST_SIZE [REPETITIONS]]\n");
        return 2;
    }
    try {
        BenchPlatform platform;
        ReportFiles(platform, sizes);
        ReportGrowth(platform, sizes);
        ReportList(platform, sizes);
        ReportHistory(platform, sizes);
        ReportRecovery(platform, sizes);
        ReportPalettes(sizes);
        ReportSearch(sizes);
        ReportProgress(platform, sizes);
        return 0;
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
