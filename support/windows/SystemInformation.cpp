#include "support/windows/SystemInformation.h"

#include "common/ProgramNames.h"
#include "support/settings/RegistryNumber.h"

#include <cstdint>

namespace {

constexpr const char* kProgramKey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
constexpr const char* kFolderKey = R"(SOFTWARE\Microsoft\Shared Tools Location)";

std::string Hexadecimal(std::uint32_t number) {
    std::string digits;
    do {
        digits.insert(digits.begin(), "0123456789ABCDEF"[number % 16U]);
        number /= 16U;
    } while (number > 0);
    return digits;
}

} // namespace

void SystemInformation::Show() {
    const std::string program = FindProgram();
    if (program.empty() || !ports_.shell.StartProgram(program))
        ports_.prompts.ShowMessage("Systeminformationen sind momentan nicht verfügbar",
                                   MessageStyle::Plain, ProgramNames::Title);
}

std::string SystemInformation::FindProgram() const {
    if (const auto program = ReadValue(kProgramKey, "PATH"))
        return *program;
    const auto folder = ReadValue(kFolderKey, "MSINFO");
    const std::string program = folder.value_or("") + "\\MSINFO32.EXE";
    return folder && ports_.files.Exists(program) ? program : std::string();
}

std::optional<std::string> SystemInformation::ReadValue(const std::string& keyPath,
                                                        const std::string& valueName) const {
    const auto value =
        ports_.registry.Query(RegistryRoot::LocalMachine, keyPath, valueName, RegistryRights::Read);
    if (!value)
        return {};
    if (value->type == RegistryType::String)
        return ports_.codePage.Decode(value->bytes.substr(0, value->bytes.find('\0')));
    const auto number = RegistryNumberFromBytes(value->bytes);
    if (value->type == RegistryType::DWord && number)
        return "&h" + Hexadecimal(*number);
    return {};
}
