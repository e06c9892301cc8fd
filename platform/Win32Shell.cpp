#include "platform/Win32Shell.h"

#include "platform/KernelHandle.h"
#include "platform/Utf16.h"

#include <shellapi.h>

namespace {

// A text that the platform takes as a pointer, or as null when there is none.
class OptionalBytes {
public:
    OptionalBytes(const std::optional<std::string>& utf8, const AnsiCodePage& codePage) {
        if (utf8)
            bytes_ = codePage.Encode(*utf8).bytes;
    }
    [[nodiscard]] const char* Pointer() const noexcept {
        return bytes_ ? bytes_->c_str() : nullptr;
    }

private:
    std::optional<std::string> bytes_;
};

// Without quotes "C:\Program Files\x.exe" might start a "C:\Program.exe".
std::wstring QuotedIfFile(const std::wstring& commandLine) {
    const bool isPath = GetFileAttributesW(commandLine.c_str()) != INVALID_FILE_ATTRIBUTES;
    return isPath ? L'"' + commandLine + L'"' : commandLine;
}

} // namespace

int Win32Shell::Execute(const ShellRequest& request) {
    HWND owner = request.owner == ShellOwner::ActiveWindow ? GetActiveWindow() : nullptr;
    const std::string verb = codePage_.Encode(request.verb).bytes;
    const std::string file = codePage_.Encode(request.file).bytes;
    const OptionalBytes parameters(request.parameters, codePage_);
    const OptionalBytes directory(request.directory, codePage_);
    const HINSTANCE result = ShellExecuteA(owner, verb.c_str(), file.c_str(), parameters.Pointer(),
                                           directory.Pointer(), request.show);
    return static_cast<int>(reinterpret_cast<INT_PTR>(result));
}

bool Win32Shell::StartProgram(const std::string& commandLine) {
    std::wstring line = QuotedIfFile(ToUtf16(commandLine));
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &started))
        return false;
    const KernelHandle process(started.hProcess);
    const KernelHandle thread(started.hThread);
    return true;
}
