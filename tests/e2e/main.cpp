#include "tests/e2e/EditorJob.h"
#include "tests/e2e/FilesJob.h"
#include "tests/e2e/MainJob.h"
#include "tests/e2e/MouseJob.h"
#include "tests/e2e/ViewsJob.h"
#include "tests/e2e/WindowsJob.h"

#include "platform/Utf16.h"

#include <filesystem>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <shellapi.h>

namespace {

// The arguments as UTF-8: main's own are bytes of the code page.
std::vector<std::string> Arguments() {
    int count = 0;
    wchar_t** texts = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(ToUtf8(texts[i]));
    LocalFree(static_cast<void*>(texts));
    return arguments;
}

// A folder as Windows writes it.
std::string WindowsPath(const std::string& path) {
    return ToUtf8(std::filesystem::path(ToUtf16(path)).make_preferred().wstring());
}

// Every job by its name.
using JobMaker = std::function<std::unique_ptr<Job>(const std::string&, const std::string&)>;

template <typename AnyJob>
JobMaker Maker() {
    return [](const std::string& programFolder, const std::string& pictureFolder) {
        return std::make_unique<AnyJob>(programFolder, pictureFolder);
    };
}

const std::map<std::string, JobMaker>& Jobs() {
    static const std::map<std::string, JobMaker> jobs = {
        {"editor", Maker<EditorJob>()}, {"files", Maker<FilesJob>()},
        {"main", Maker<MainJob>()},     {"mouse", Maker<MouseJob>()},
        {"views", Maker<ViewsJob>()},   {"windows", Maker<WindowsJob>()},
    };
    return jobs;
}

} // namespace

// play_job.exe JOB PROGRAM_FOLDER PICTURE_FOLDER
int main() {
    const std::vector<std::string> arguments = Arguments();
    if (arguments.size() != 3 || !Jobs().contains(arguments[0])) {
        std::cout << "usage: play_job JOB PROGRAM_FOLDER PICTURE_FOLDER\n";
        return 2;
    }
    try {
        return Jobs().at(arguments[0])(WindowsPath(arguments[1]), WindowsPath(arguments[2]))->Run();
    } catch (const std::exception& error) {
        std::cout << error.what() << "\n0 passed, 1 failed\n";
        return 1;
    }
}
