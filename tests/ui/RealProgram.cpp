#include "tests/ui/RealProgram.h"

#include "resources/controls.h"

#include <array>
#include <utility>

RealProgram::RealProgram(RegistryAccess& registryAccess, std::string programFolder,
                         const AnsiCodePage& codePage, AutomationService* solidWorksService,
                         const std::string& bannerFolder, std::size_t historyBytesOfUndo)
    : registry(registryAccess), folder(std::move(programFolder)), page(codePage),
      banners(bannerFolder.empty() ? BannerPictures() : BannerPictures(bannerFolder)),
      automation(solidWorksService != nullptr ? *solidWorksService : service),
      historyBytes(historyBytesOfUndo) {
    main.Attach(application.MainWindowEvents());
    about.Attach(application.AboutWindowEvents());
    textViewer.Attach(application.TextViewerWindowEvents());
    progressWindow.Attach(application.ProgressWindowEvents());
    recover.Attach(application.RecoverWindowEvents());
    find.Attach(application.FindWindowEvents());
    levels.Attach(application.LevelsWindowEvents());
}

RealProgram::~RealProgram() = default;

std::string RealProgram::BannerAddress(int index) {
    return "https://www.example.org/" + std::to_string(index);
}

void RealProgram::Run(int command) {
    SendMessageW(main.Handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
}

std::wstring RealProgram::TextOfStop() {
    progress.ShowProgress("x", 0, 1);
    std::array<wchar_t, 64> text{};
    GetDlgItemTextW(ProgressHandle(), IDC_cmdCancel, text.data(), static_cast<int>(text.size()));
    progress.HideProgress();
    return text.data();
}

void RealProgram::Close() {
    SendMessageW(main.Handle(), WM_CLOSE, 0, 0);
    MSG quit{};
    PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

std::vector<std::string> RealProgram::BannerAddresses(int count) {
    std::vector<std::string> addresses;
    for (int index = 1; index <= count; ++index)
        addresses.push_back(BannerAddress(index));
    return addresses;
}
