#include "tests/fakes/FakeProgram.h"

namespace {

// Whether the message with this number has arguments.
bool HasArguments(int number) {
    return (number >= 110 && number < 150) || (number >= 170 && number < 174) || number == 181 ||
           number == 189 || (number >= 205 && number < 209) || (number >= 268 && number < 272) ||
           number == 284;
}

FakeProfile::Values TextsOfBothLanguages() {
    FakeProfile::Values texts;
    for (int number = 0; number < 300; ++number) {
        if (HasArguments(number))
            continue;
        for (const char* code : {"de", "us"})
            texts[{std::string("C:\\prog\\tntlng_") + code + ".ini", "Info",
                   "Text." + std::to_string(number)}] = "<" + std::to_string(number) + ">";
    }
    return texts;
}

} // namespace

FakeProgram::FakeProgram(const std::string& scenario, AutomationService* running,
                         std::chrono::milliseconds sliceOfSearch)
    : solidWorks(scenario), automation(running ? *running : retryingService),
      findSlice(sliceOfSearch) {
    files.contents["C:\\prog\\tntlng_de.ini"] = "";
    files.contents["C:\\prog\\tntlng_us.ini"] = "";
    static const FakeProfile::Values texts = TextsOfBothLanguages(); // there are many programs
    profile.values = texts;
    textViewer.events = &application.TextViewerWindowEvents();
}

FakeProgram::~FakeProgram() = default;
