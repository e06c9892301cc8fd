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

Document& RequireActive(const StandInModel& model) {
    const DocumentPtr document = model.ActiveDocument();
    if (!document)
        ThrowInvalid("There is no active document");
    return *document;
}

bool ReadBoolean(const std::string& text) {
    if (text != "true" && text != "false")
        ThrowInvalid("Neither true nor false: " + text);
    return text == "true";
}

struct Order {
    const char* verb;
    void (*run)(StandInModel&, const std::string& value);
};

constexpr Order kOrders[] = {
    {"fault", [](StandInModel& model,
                 const std::string& value) { model.Gate().AddFault(ParseFault(value)); }},
    {"document", [](StandInModel& model,
                    const std::string& value) { model.Activate(ReadDocumentType(value)); }},
    {"revision", [](StandInModel& model, const std::string& value) { model.SetRevision(value); }},
    {"visible",
     [](StandInModel& model, const std::string& value) { model.SetVisible(ReadBoolean(value)); }},
    {"title",
     [](StandInModel& model, const std::string& value) { RequireActive(model).SetTitle(value); }},
    {"path",
     [](StandInModel& model, const std::string& value) { RequireActive(model).SetPath(value); }},
};

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
    if (order == "clear-faults")
        return model.Gate().ClearFaults();
    for (const Order& known : kOrders)
        if (verb == known.verb)
            return known.run(model, rest);
    ThrowInvalid("Unknown order: " + order);
}
