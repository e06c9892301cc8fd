#include "standin/model/CommandLine.h"

#include "common/RuntimeError.h"
#include "standin/model/StandInModel.h"

namespace {

[[noreturn]] void ThrowInvalid(const std::string& text) {
    throw RuntimeError(ErrorNumber::InvalidPropertyValue, text);
}

struct Switch {
    const char* name;
    void (*apply)(CommandLine&, const std::string& value);
    bool hasValue;
};

constexpr Switch kSwitches[] = {
    {"--scenario",
     [](CommandLine& line, const std::string& value) { ApplyScenario(value, line.scenario); },
     true},
    {"--assembly",
     [](CommandLine& line, const std::string&) { ApplyScenario("assembly", line.scenario); },
     false},
    {"--fault",
     [](CommandLine& line, const std::string& value) { line.faults.push_back(ParseFault(value)); },
     true},
    {"--log", [](CommandLine& line, const std::string& value) { line.logFile = value; }, true},
    {"--ready-file", [](CommandLine& line, const std::string& value) { line.readyFile = value; },
     true},
    {"--hidden", [](CommandLine& line, const std::string&) { line.hidden = true; }, false},
};

const Switch& FindSwitch(const std::string& name) {
    for (const Switch& known : kSwitches)
        if (name == known.name)
            return known;
    ThrowInvalid("Unknown switch: " + name);
}

std::optional<DocumentType> ReadDocumentType(const std::string& name) {
    if (name == "part")
        return DocumentType::Part;
    if (name == "assembly")
        return DocumentType::Assembly;
    if (name == "drawing")
        return DocumentType::Drawing;
    if (name == "none")
        return std::nullopt;
    ThrowInvalid("Unknown document: " + name);
}

} // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const Switch& found = FindSwitch(arguments[i]);
        if (found.hasValue && ++i == arguments.size())
            ThrowInvalid(std::string(found.name) + " needs a value");
        found.apply(line, found.hasValue ? arguments[i] : std::string());
    }
    return line;
}

void RunOrder(const std::string& order, StandInModel& model) {
    const std::size_t blank = order.find(' ');
    const std::string verb = order.substr(0, blank);
    const std::string rest = blank == std::string::npos ? "" : order.substr(blank + 1);
    if (verb == "fault")
        model.Gate().AddFault(ParseFault(rest));
    else if (order == "clear-faults")
        model.Gate().ClearFaults();
    else if (verb == "document")
        model.Activate(ReadDocumentType(rest));
    else
        ThrowInvalid("Unknown order: " + order);
}
