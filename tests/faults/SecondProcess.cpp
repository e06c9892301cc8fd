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

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
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

// A program with a library that has not read the file: it holds nothing of what it has in it.
class Newcomer {
public:
    explicit Newcomer(Files& files) : files_(files) {}

    bool Save(const std::string& path, const std::string& content) {
        return libraryFiles_.Write({path, key_, false}, content).isWritten;
    }

private:
    Files& files_;
    Win32AnsiCodePage codePage_{1252};
    Win32CalendarClock clock_;
    ColorLibrary library_;
    LibraryFiles libraryFiles_{library_, {.files = files_, .codePage = codePage_, .clock = clock_}};
    std::string key_ = library_.NewMainNode("Lib");
};

// The contents that were written stand in FILE.NAME, one a line.
int SaveOften(const std::string& name, int count, const std::string& path) {
    Win32Files files;
    std::ofstream written(path + "." + name, std::ios::binary);
    if (!PollUntil([&] { return files.Exists(path + ".go"); }))
        return 1;
    for (int number = 1; number <= count; ++number) {
        const std::string content = name + " " + std::to_string(number);
        if (Newcomer(files).Save(path, content))
            written << content << '\n';
    }
    return 0;
}

// Of a file that another process still writes.
std::size_t LinesIn(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return static_cast<std::size_t>(
        std::count(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>(), '\n'));
}

// One program from its start to its end, which saves after each save of the other one.
int SaveInTurn(const std::string& name, const std::string& other, int count,
               const std::string& path) {
    Win32Files files;
    Newcomer program(files);
    std::ofstream written(path + "." + name, std::ios::binary);
    const int ahead = name < other ? 1 : 0; // who begins
    for (int number = 1; number <= count; ++number) {
        const auto awaited = static_cast<std::size_t>(number - ahead);
        if (!PollUntil([&] { return LinesIn(path + "." + other) >= awaited; }))
            return 1;
        const std::string content = name + " " + std::to_string(number);
        if (!program.Save(path, content))
            return 1;
        written << content << std::endl;
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
    if (task == "--save-in-turn" && count == 6)
        return SaveInTurn(arguments[2], arguments[3], std::atoi(arguments[4]), arguments[5]);
    if (task == "--hold" && count == 3)
        return Hold(arguments[2]);
    return {};
}

std::string SecondProcess(const std::string& arguments) {
    std::array<wchar_t, MAX_PATH> program{};
    GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    return "\"" + ToUtf8(program.data()) + "\" " + arguments;
}
