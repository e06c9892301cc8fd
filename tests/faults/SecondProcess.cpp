#include "tests/faults/SecondProcess.h"

#include "library/RecoveryFolder.h"
#include "platform/KernelHandle.h"
#include "platform/Utf16.h"
#include "platform/Win32CalendarClock.h"
#include "platform/Win32Folders.h"
#include "tests/fakes/FakeRunningCopies.h"
#include "tests/faults/DyingFiles.h"
#include "tests/faults/RealLibrary.h"
#include "tests/platform/PollUntil.h"

#include <array>
#include <cstdlib>
#include <fstream>
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

int Keep(Files& files, const std::string& folder, const std::string& content) {
    Win32Folders folders;
    const Win32CalendarClock clock;
    FakeRunningCopies copies;
    RecoveryFolder recovery({.files = files, .folders = folders, .copies = copies, .clock = clock},
                            folder);
    return recovery.Write(recovery.NewId(), {.libraryName = "Lib"}, content) ? 0 : 1;
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

// Each save is that of a program that has just begun: it holds nothing of what the file has in it.
bool SaveAsANewcomer(Files& files, const std::string& path, const std::string& content) {
    const Win32AnsiCodePage codePage(1252);
    const Win32CalendarClock clock;
    ColorLibrary library;
    LibraryFiles libraryFiles(library, {.files = files, .codePage = codePage, .clock = clock});
    const std::string key = library.NewMainNode(content);
    return libraryFiles.Write({path, key, false}, content).isWritten;
}

// The contents that were written stand in FILE.NAME, one a line.
int SaveOften(const std::string& name, int count, const std::string& path) {
    Win32Files files;
    std::ofstream written(path + "." + name, std::ios::binary);
    if (!PollUntil([&] { return files.Exists(path + ".go"); }))
        return 1;
    for (int number = 1; number <= count; ++number) {
        const std::string content = name + " " + std::to_string(number);
        if (SaveAsANewcomer(files, path, content))
            written << content << '\n';
    }
    return 0;
}

} // namespace

std::optional<int> RunAsSecondProcess(int count, char** arguments) {
    const std::string_view task = count > 1 ? arguments[1] : "";
    if (task == "--save-and-die" && count == 4) {
        DyingFiles files(std::atoi(arguments[2]));
        return SaveWithOneColorMore(files, arguments[3]);
    }
    if (task == "--keep-and-die" && count == 5) {
        DyingFiles files(std::atoi(arguments[2]));
        return Keep(files, arguments[3], arguments[4]);
    }
    if (task == "--save" && count == 3) {
        DyingFiles files(kNever);
        return SaveWithOneColorMore(files, arguments[2]);
    }
    if (task == "--save-on-signal" && count == 3)
        return SaveOnSignal(arguments[2]);
    if (task == "--save-often" && count == 5)
        return SaveOften(arguments[2], std::atoi(arguments[3]), arguments[4]);
    if (task == "--hold" && count == 3)
        return Hold(arguments[2]);
    return {};
}

std::string SecondProcess(const std::string& arguments) {
    std::array<wchar_t, MAX_PATH> program{};
    GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    return "\"" + ToUtf8(program.data()) + "\" " + arguments;
}
