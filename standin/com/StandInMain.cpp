#include "common/RuntimeError.h"
#include "platform/ComApartment.h"
#include "platform/LibrarySearch.h"
#include "platform/MessageLoop.h"
#include "platform/Utf16.h"
#include "standin/com/BusyAnswer.h"
#include "standin/com/CallLogFile.h"
#include "standin/com/frmStandIn.h"
#include "standin/com/StandInServer.h"
#include "standin/model/CommandLine.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <shellapi.h>

namespace {

constexpr const wchar_t* kTitle = L"SolidWorks stand-in";
constexpr std::size_t kKeptCalls = 500; // in the window; the log file holds them all
constexpr UINT kDeathExitCode = 3;

class MessageBoxSink final : public ErrorSink {
public:
    void ReportError(const RuntimeError& error) noexcept override {
        const std::string member = error.Member().empty() ? "" : " (" + error.Member() + ")";
        const std::string text = error.Description() + member;
        MessageBoxW(nullptr, ToUtf16(text).c_str(), kTitle, MB_OK | MB_ICONEXCLAMATION);
    }
};

std::vector<std::string> Arguments() {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(
        CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; i < count && words; ++i)
        arguments.push_back(ToUtf8(words.get()[i]));
    return arguments;
}

// The content tells a starter which process became ready.
void WriteReadyFile(const std::string& name) {
    if (name.empty())
        return;
    std::ofstream file(std::filesystem::path(ToUtf16(name)), std::ios::binary);
    file << GetCurrentProcessId() << '\n';
}

int Run(ErrorSink& errors) {
    const CommandLine line = ParseCommandLine(Arguments());
    const ComApartment apartment;
    StandInModel model(line.scenario);
    std::unique_ptr<CallLogFile> logFile;
    if (!line.logFile.empty())
        logFile = std::make_unique<CallLogFile>(line.logFile);
    for (const Fault& fault : line.faults)
        model.Gate().AddFault(fault);
    model.Gate().SetDieHandler([] { TerminateProcess(GetCurrentProcess(), kDeathExitCode); });
    model.Log().SetLimit(kKeptCalls);
    const BusyAnswer busyAnswer(model.Gate());
    const StandInServer server(model);
    frmStandIn window(model, server.Objects(), errors);
    model.Log().SetListener([&](const CallRecord& record) {
        if (logFile)
            logFile->Write(record);
        window.CallReceived();
    });
    if (!line.hidden)
        window.Open();
    WriteReadyFile(line.readyFile);
    const int exitCode = RunMessageLoop();
    model.Log().SetListener({}); // calls may come until the server has gone, after the window
    return exitCode;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    SearchSystemLibrariesOnly();
    MessageBoxSink errors;
    try {
        return Run(errors);
    } catch (const std::exception& error) {
        errors.ReportError(RuntimeError(ErrorNumber::Internal, error.what()));
        return 2;
    }
}
