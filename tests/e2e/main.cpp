#include "tests/e2e/MainJob.h"

#include "platform/Utf16.h"

#include <iostream>
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

} // namespace

// main_job.exe PROGRAM_FOLDER PICTURE_FOLDER
int main() {
    const std::vector<std::string> arguments = Arguments();
    if (arguments.size() != 2) {
        std::cout << "usage: main_job PROGRAM_FOLDER PICTURE_FOLDER\n";
        return 2;
    }
    try {
        return MainJob(arguments[0], arguments[1]).Run();
    } catch (const std::exception& error) {
        std::cout << error.what() << "\n0 passed, 1 failed\n";
        return 1;
    }
}
