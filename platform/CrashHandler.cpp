#include "platform/CrashHandler.h"

#include "platform/KernelHandle.h"
#include "platform/PlatformPath.h"
#include "platform/SystemFunction.h"
#include "platform/Utf16.h"
#include "platform/Win32Folders.h"

#include <array>
#include <cstdio>
#include <dbghelp.h>
#include <exception>
#include <utility>
#include <windows.h>

struct CrashHandler::Settings {
    std::string folder;
    std::string version;
    std::function<void()> save;
    DWORD thread = GetCurrentThreadId();
    LPTOP_LEVEL_EXCEPTION_FILTER filterBefore = nullptr;
    std::terminate_handler terminateBefore = nullptr;
};

namespace {

// The system calls its handlers without an argument of ours.
struct CurrentSettings {
    const std::string* folder;
    const std::string* version;
    const std::function<void()>* save;
    DWORD thread;
};
CurrentSettings current{};

constexpr DWORD kLongestEnd = 5000;            // milliseconds from the crash to the end
constexpr DWORD kTerminateCalled = 0xE0545443; // as an exception's code

// A heap that is broken may hold whoever asks it for memory.
DWORD WINAPI EndAfterAWhile(void* exceptionCode) {
    Sleep(kLongestEnd);
    TerminateProcess(GetCurrentProcess(), *static_cast<const DWORD*>(exceptionCode));
    return 0;
}

std::string NewName() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    std::array<char, 80> name{};
    static_cast<void>(std::snprintf(name.data(), name.size(), "crash %04u%02u%02u %02u%02u%02u %lu",
                                    now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute,
                                    now.wSecond, GetCurrentProcessId()));
    return name.data();
}

KernelHandle NewFile(const std::string& path) {
    return KernelHandle(CreateFileW(ToPlatformPath(path).c_str(), GENERIC_WRITE, 0, nullptr,
                                    CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
}

void WriteDump(const std::string& path, EXCEPTION_POINTERS* pointers) {
    const auto write =
        SystemFunction<decltype(&MiniDumpWriteDump)>(L"dbghelp.dll", "MiniDumpWriteDump");
    const KernelHandle file = NewFile(path);
    if (write == nullptr || !file)
        return;
    MINIDUMP_EXCEPTION_INFORMATION exception{GetCurrentThreadId(), pointers, FALSE};
    write(GetCurrentProcess(), GetCurrentProcessId(), file.Get(), MiniDumpNormal, &exception,
          nullptr, nullptr);
}

void WriteText(const std::string& path, const EXCEPTION_RECORD& record) {
    const auto base = reinterpret_cast<std::uintptr_t>(GetModuleHandleW(nullptr));
    const auto address = reinterpret_cast<std::uintptr_t>(record.ExceptionAddress);
    std::array<char, 200> text{};
    const int length = std::snprintf(
        text.data(), text.size(), "TNT4SWX %s\r\nexception %08lX at %llX, program at %llX\r\n",
        current.version->c_str(), record.ExceptionCode, static_cast<unsigned long long>(address),
        static_cast<unsigned long long>(base));
    DWORD written = 0;
    const KernelHandle file = NewFile(path);
    if (file && length > 0)
        WriteFile(file.Get(), text.data(), static_cast<DWORD>(length), &written, nullptr);
}

// The text first: it takes the least.
LONG WINAPI Report(EXCEPTION_POINTERS* pointers) {
    SetUnhandledExceptionFilter(nullptr); // a second crash is the end
    DWORD code = pointers->ExceptionRecord->ExceptionCode;
    const KernelHandle watch(CreateThread(nullptr, 0, EndAfterAWhile, &code, 0, nullptr));
    const std::string path = *current.folder + "\\" + NewName();
    static_cast<void>(Win32Folders().Make(*current.folder));
    WriteText(path + ".new", *pointers->ExceptionRecord);
    WriteDump(path + ".dmp", pointers);
    if (GetCurrentThreadId() == current.thread && *current.save)
        (*current.save)();
    TerminateProcess(GetCurrentProcess(), code);
    return EXCEPTION_EXECUTE_HANDLER;
}

[[noreturn]] void ReportTerminate() {
    RaiseException(kTerminateCalled, EXCEPTION_NONCONTINUABLE, 0, nullptr);
    std::abort();
}

} // namespace

CrashHandler::CrashHandler(std::string folder, std::string version, std::function<void()> save)
    : settings_(new Settings{std::move(folder), std::move(version), std::move(save)}) {
    if (settings_->folder.empty())
        return;
    current = {&settings_->folder, &settings_->version, &settings_->save, settings_->thread};
    settings_->filterBefore = SetUnhandledExceptionFilter(Report);
    settings_->terminateBefore = std::set_terminate(ReportTerminate);
}

CrashHandler::~CrashHandler() {
    if (settings_->folder.empty())
        return;
    SetUnhandledExceptionFilter(settings_->filterBefore);
    std::set_terminate(settings_->terminateBefore);
}
