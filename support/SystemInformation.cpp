#include "support/SystemInformation.h"

#include "common/ProgramNames.h"

#include <cstdint>

namespace {

constexpr const char* kProgramKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr const char* kFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";
constexpr std::size_t kNumberSize = 4;

std::string Hexadecimal(std::uint32_t number) {
    std::string digits;
    do {
        digits.insert(digits.begin(), "0123456789ABCDEF"[number % 16U]);
        number /= 16U;
    } while (number > 0);
    return digits;
}

std::uint32_t LittleEndian(const std::string& bytes) {
    std::uint32_t number = 0;
    for (std::size_t index = kNumberSize; index-- > 0;)
        number = number * 256U + static_cast<unsigned char>(bytes[index]);
    return number;
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
    if (value->type == RegistryType::DWord && value->bytes.size() == kNumberSize)
        return "&h" + Hexadecimal(LittleEndian(value->bytes));
    return {};
}
