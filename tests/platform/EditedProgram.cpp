#include "tests/platform/EditedProgram.h"

#include "common/ProgramNames.h"
#include "platform/SystemFunction.h"
#include "platform/Utf16.h"
#include "platform/Win32Files.h"
#include "platform/Win32Folders.h"
#include "resources/controls.h"
#include "tests/platform/BuiltProgram.h"
#include "tests/platform/PollUntil.h"

#include <commctrl.h>
#include <psapi.h>
#include <stdexcept>

namespace {

constexpr auto kLimit = static_cast<DWORD>(std::chrono::milliseconds(kPatience).count());

// A page where no process has anything.
void* NowhereInMemory() {
    return reinterpret_cast<void*>(UINT_PTR{0x10});
}

// A function that a thread may begin with: the system checks that it is one before it calls it, and
// would end a program that began elsewhere before any of its handlers is asked.  This one writes
// zero to where its argument says, and does nothing else.
LPTHREAD_START_ROUTINE WritesToItsArgument() {
    return SystemFunction<LPTHREAD_START_ROUTINE>(L"ntdll.dll", "RtlInitializeSRWLock");
}

ModuleRange ModuleOf(LPTHREAD_START_ROUTINE function) {
    HMODULE module = nullptr;
    MODULEINFO information{};
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(function), &module);
    GetModuleInformation(GetCurrentProcess(), module, &information, sizeof information);
    const auto begin = reinterpret_cast<std::uintptr_t>(information.lpBaseOfDll);
    return {begin, begin + information.SizeOfImage};
}

} // namespace

EditedProgram::EditedProgram()
    : process_("\"" + ToUtf8(BuiltProgram().wstring()) + "\""),
      main_(RemoteWindow::WaitFor(L"frmMain", process_.Id())) {}

bool EditedProgram::Send(UINT message, WPARAM parameter) const {
    DWORD_PTR answer = 0;
    return SendMessageTimeoutW(main_.Handle(), message, parameter, 0, SMTO_NORMAL, kLimit,
                               &answer) != 0;
}

void EditedProgram::Begin(int command) const {
    PostMessageW(main_.Handle(), WM_COMMAND, MAKEWPARAM(command, 0), 0);
}

int EditedProgram::RowCount() const {
    const HWND list = main_.Child(IDC_lvColor).Handle();
    return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
}

int EditedProgram::NodeCount() const {
    const HWND tree = main_.Child(IDC_tvColor).Handle();
    return static_cast<int>(SendMessageW(tree, TVM_GETCOUNT, 0, 0));
}

std::string EditedProgram::Status() const {
    return main_.Child(IDC_stbarMain).Text();
}

ModuleRange EditedProgram::Crash() const {
    constexpr DWORD kRights = PROCESS_CREATE_THREAD | PROCESS_QUERY_INFORMATION |
                              PROCESS_VM_OPERATION | PROCESS_VM_WRITE | PROCESS_VM_READ;
    HANDLE process = OpenProcess(kRights, FALSE, Id());
    const KernelHandle opened(process != nullptr ? process : KernelHandleTraits::None());
    const LPTHREAD_START_ROUTINE function = WritesToItsArgument();
    HANDLE thread =
        CreateRemoteThread(opened.Get(), nullptr, 0, function, NowhereInMemory(), 0, nullptr);
    if (thread == nullptr)
        throw std::runtime_error("No thread could be started in the program");
    CloseHandle(thread);
    return ModuleOf(function);
}

void EditedProgram::Kill() const {
    HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, Id());
    const KernelHandle opened(process != nullptr ? process : KernelHandleTraits::None());
    TerminateProcess(opened.Get(), 98);
    if (WaitForSingleObject(opened.Get(), kLimit) != WAIT_OBJECT_0)
        throw std::runtime_error("The program cannot be ended");
}

KeptLibraries::KeptLibraries() : path_(LocalDataFolder() + ProgramNames::RecoveryFolder) {
    Clean();
}

KeptLibraries::~KeptLibraries() {
    Clean();
}

void KeptLibraries::Clean() const {
    Win32Files files;
    // What a program that has just ended still holds goes a moment later.
    static_cast<void>(PollUntil([&] {
        for (const std::string& name : Win32Folders().FileNamesIn(path_))
            files.Remove(path_ + "\\" + name);
        return Win32Folders().FileNamesIn(path_).empty();
    }));
}

std::map<std::string, std::string> KeptLibraries::Files(std::string_view ending) const {
    Win32Files files;
    std::map<std::string, std::string> found;
    for (const std::string& name : Win32Folders().FileNamesIn(path_))
        if (name.ends_with(ending))
            if (auto content = files.ReadWhole(path_ + "\\" + name))
                found[name] = std::move(*content);
    return found;
}
