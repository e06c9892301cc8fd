#include "tests/faults/SecondProcess.h"

#include "platform/KernelHandle.h"
#include "platform/Utf16.h"
#include "tests/faults/DyingFiles.h"
#include "tests/faults/RealLibrary.h"
#include "tests/platform/PollUntil.h"

#include <array>
#include <cstdlib>
#include <string_view>
#include <windows.h>

namespace {

constexpr int kNever = 0;

int SaveWithOneColorMore(Files& files, const std::string& path) {
    RealLibrary program(files);
    program.Open(path);
    program.AddColors(1);
    program.Save();
    return program.prompts.messages.empty() ? 0 : 1;
}

int SaveOnSignal(const std::string& path) {
    Win32Files files;
    RealLibrary program(files);
    program.Open(path);
    const bool isOpen = files.Create(path + ".open") != nullptr;
    if (!isOpen || !PollUntil([&] { return files.Exists(path + ".go"); }))
        return 1;
    program.AddColors(1, "of the second process ");
    program.Save();
    return program.prompts.messages.empty() ? 0 : 1;
}

int Hold(const std::string& path) {
    KernelHandle file;
    // Somebody may be looking into it just now.
    const bool isHeld = PollUntil([&] {
        file = KernelHandle(CreateFileW(ToUtf16(path).c_str(), GENERIC_READ | GENERIC_WRITE, 0,
                                        nullptr, OPEN_EXISTING, 0, nullptr));
        return static_cast<bool>(file);
    });
    if (isHeld)
        Sleep(INFINITE);
    return 1;
}

} // namespace

std::optional<int> RunAsSecondProcess(int count, char** arguments) {
    const std::string_view task = count > 1 ? arguments[1] : "";
    if (task == "--save-and-die" && count == 4) {
        DyingFiles files(std::atoi(arguments[2]));
        return SaveWithOneColorMore(files, arguments[3]);
    }
    if (task == "--save" && count == 3) {
        DyingFiles files(kNever);
        return SaveWithOneColorMore(files, arguments[2]);
    }
    if (task == "--save-on-signal" && count == 3)
        return SaveOnSignal(arguments[2]);
    if (task == "--hold" && count == 3)
        return Hold(arguments[2]);
    return {};
}

std::string SecondProcess(const std::string& arguments) {
    std::array<wchar_t, MAX_PATH> program{};
    GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    return "\"" + ToUtf8(program.data()) + "\" " + arguments;
}
