#include "mainwindow/frmMain.h"
#include "platform/Utf16.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32Files.h"
#include "platform/Win32WaitingClock.h"
#include "support/windows/BannerPictures.h"
#include "platform/Win32Ticker.h"
#include "support/windows/frmProgress.h"
#include "support/windows/PatientProgress.h"
#include "tests/bench/library/BenchPlatform.h"
#include "tests/bench/library/Timing.h"
#include "tests/ui/RecordingErrorSink.h"

namespace {

constexpr std::chrono::milliseconds kPatience(1000); // as in the program

double Milliseconds(const FILETIME& time) {
    return static_cast<double>(ULARGE_INTEGER{{time.dwLowDateTime, time.dwHighDateTime}}.QuadPart) /
           10000;
}

} // namespace

struct BenchPlatform::Parts {
    Win32Files files;
    Win32AnsiCodePage codePage{1252};
    RecordingErrorSink errors;
    Win32WaitingClock clock;
    Win32Ticker ticker{errors};
    ProgressOnDemand window{nullptr, errors};
    PatientProgress progress{window, ticker, clock, kPatience};
};

BenchPlatform::BenchPlatform() : parts_(std::make_unique<Parts>()) {}
BenchPlatform::~BenchPlatform() = default;

Files& BenchPlatform::FileSystem() {
    return parts_->files;
}
const AnsiCodePage& BenchPlatform::CodePage() const {
    return parts_->codePage;
}
ProgressView* BenchPlatform::ProgressWindow() {
    return &parts_->progress;
}
std::string BenchPlatform::Folder() const {
    wchar_t folder[MAX_PATH + 1] = {};
    return ToUtf8({folder, GetTempPathW(MAX_PATH, folder)});
}

double ProcessorMilliseconds() {
    FILETIME made{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    GetProcessTimes(GetCurrentProcess(), &made, &ended, &kernel, &user);
    return Milliseconds(kernel) + Milliseconds(user);
}
