#include "platform/CrashHandler.h"

#include "platform/KernelHandle.h"
#include "platform/PlatformPath.h"
#include "platform/SystemFunction.h"
#include "platform/Win32Folders.h"

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <dbghelp.h>
#include <exception>
#include <utility>
#include <windows.h>

namespace {

// Milliseconds from the crash to the end.  A system whose dumps name every symbol takes ten seconds
// and more for one on a busy machine.
constexpr DWORD kLongestEnd = 25'000;
constexpr DWORD kTerminateCalled = 0xE0545443; // as an exception's code
constexpr ULONG kStackForTheEnd = 64 * 1024;   // bytes that an overflow of the stack leaves
constexpr std::size_t kLongestPath = 1000;

KernelHandle Checked(HANDLE handle) {
    return KernelHandle(handle != nullptr ? handle : KernelHandleTraits::None());
}

} // namespace

// All that is needed in a crash is made before it: the heap may be broken then, and a new thread
// may never begin.
struct CrashHandler::Parts {
    Parts(Report place, std::function<void()> saveWork)
        : report(std::move(place)), save(std::move(saveWork)),
          pathStart(ToPlatformPath(report.folder + "\\crash ")),
          crashed(Checked(CreateEventW(nullptr, TRUE, FALSE, nullptr))),
          watch(Checked(CreateThread(nullptr, kStackForTheEnd, Watch, this, 0, nullptr))) {}

    // A heap that is broken may hold whoever asks it for memory.
    static DWORD WINAPI Watch(void* parts) {
        WaitForSingleObject(static_cast<const Parts*>(parts)->crashed.Get(), INFINITE);
        if (static_cast<const Parts*>(parts)->isOver)
            return 0;
        Sleep(kLongestEnd);
        TerminateProcess(GetCurrentProcess(), kTerminateCalled);
        return 0;
    }

    Report report;
    std::function<void()> save;
    std::wstring pathStart;
    DWORD thread = GetCurrentThreadId();
    std::atomic<bool> isOver = false;
    std::atomic<bool> isReporting = false;
    LPTOP_LEVEL_EXCEPTION_FILTER filterBefore = nullptr;
    std::terminate_handler terminateBefore = nullptr;
    KernelHandle crashed; // an event
    KernelHandle watch;   // its thread
};

namespace {

// The system calls its handlers without an argument of ours.
CrashHandler::Parts* current = nullptr;

using Path = std::array<wchar_t, kLongestPath>;

// Date, time and process number, so that names sort as the crashes came.
Path PathOf(const SYSTEMTIME& now, const wchar_t* extension) {
    Path path{};
    static_cast<void>(
        std::swprintf(path.data(), path.size(), L"%ls%04u%02u%02u %02u%02u%02u %lu%ls",
                      current->pathStart.c_str(), now.wYear, now.wMonth, now.wDay, now.wHour,
                      now.wMinute, now.wSecond, GetCurrentProcessId(), extension));
    return path;
}

KernelHandle NewFile(const Path& path) {
    return KernelHandle(CreateFileW(path.data(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool WriteText(const SYSTEMTIME& now, const EXCEPTION_RECORD& record) {
    const KernelHandle file = NewFile(PathOf(now, L".new"));
    if (!file)
        return false;
    const auto base = reinterpret_cast<std::uintptr_t>(GetModuleHandleW(nullptr));
    const auto address = reinterpret_cast<std::uintptr_t>(record.ExceptionAddress);
    std::array<char, 300> text{};
    const int length = std::snprintf(
        text.data(), text.size(), "%.100s\r\nexception %08lX at %llX, program at %llX\r\n",
        current->report.program.c_str(), record.ExceptionCode,
        static_cast<unsigned long long>(address), static_cast<unsigned long long>(base));
    DWORD written = 0;
    return length > 0 && WriteFile(file.Get(), text.data(), static_cast<DWORD>(length), &written,
                                   nullptr) != FALSE;
}

void WriteDump(const SYSTEMTIME& now, EXCEPTION_POINTERS* pointers) {
    const auto write =
        SystemFunction<decltype(&MiniDumpWriteDump)>(L"dbghelp.dll", "MiniDumpWriteDump");
    const KernelHandle file = NewFile(PathOf(now, L".dmp"));
    if (write == nullptr || !file)
        return;
    MINIDUMP_EXCEPTION_INFORMATION exception{GetCurrentThreadId(), pointers, FALSE};
    write(GetCurrentProcess(), GetCurrentProcessId(), file.Get(), MiniDumpNormal, &exception,
          nullptr, nullptr);
}

// The text first: it takes the least.  A second crash, in the report too, waits for the end.
LONG WINAPI ReportCrash(EXCEPTION_POINTERS* pointers) {
    if (current->isReporting.exchange(true))
        Sleep(INFINITE);
    SetEvent(current->crashed.Get());
    SYSTEMTIME now{};
    GetLocalTime(&now);
    if (!WriteText(now, *pointers->ExceptionRecord) && Win32Folders().Make(current->report.folder))
        WriteText(now, *pointers->ExceptionRecord);
    WriteDump(now, pointers);
    if (GetCurrentThreadId() == current->thread && current->save)
        current->save();
    TerminateProcess(GetCurrentProcess(), pointers->ExceptionRecord->ExceptionCode);
    return EXCEPTION_EXECUTE_HANDLER;
}

[[noreturn]] void ReportTerminate() {
    RaiseException(kTerminateCalled, EXCEPTION_NONCONTINUABLE, 0, nullptr);
    std::abort();
}

} // namespace

CrashHandler::CrashHandler(Report report, std::function<void()> save) {
    if (report.folder.empty())
        return;
    parts_ = std::make_unique<Parts>(std::move(report), std::move(save));
    current = parts_.get();
    ULONG stack = kStackForTheEnd;
    SetThreadStackGuarantee(&stack);
    parts_->filterBefore = SetUnhandledExceptionFilter(ReportCrash);
    parts_->terminateBefore = std::set_terminate(ReportTerminate);
}

CrashHandler::~CrashHandler() {
    if (parts_ == nullptr)
        return;
    SetUnhandledExceptionFilter(parts_->filterBefore);
    std::set_terminate(parts_->terminateBefore);
    parts_->isOver = true;
    SetEvent(parts_->crashed.Get());
    WaitForSingleObject(parts_->watch.Get(), INFINITE);
}
