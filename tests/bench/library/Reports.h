#pragma once

#include "tests/bench/library/BenchPlatform.h"

struct BenchSizes {
    int largest = 1000000; // colors
    int repetitions = 5;
};

// Each measures one side of the library and prints its table.
void ReportFiles(BenchPlatform& platform, const BenchSizes& sizes);    // beside the floors; memory
void ReportGrowth(BenchPlatform& platform, const BenchSizes& sizes);   // from a thousand colors
void ReportList(BenchPlatform& platform, const BenchSizes& sizes);     // showing a group
void ReportHistory(BenchPlatform& platform, const BenchSizes& sizes);  // steps, undo; memory
void ReportRecovery(BenchPlatform& platform, const BenchSizes& sizes); // keeping what has changed
void ReportPalettes(const BenchSizes& sizes); // foreign files, beside floors
void ReportSearch(const BenchSizes& sizes);   // finding colors
void ReportProgress(BenchPlatform& platform, const BenchSizes& sizes); // cost of the window
