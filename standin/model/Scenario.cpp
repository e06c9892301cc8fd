#include "standin/model/Scenario.h"

#include "common/Numbers.h"
#include "common/Text.h"

#include <array>

namespace {

// Beyond this a generated document would not fit into memory.
constexpr std::int32_t kLargestCount = 1'000'000;

struct Word {
    const char* name;
    void (*apply)(Scenario&);
};

constexpr std::array<Word, 9> kWords{{
    {"default", [](Scenario& scenario) { scenario = {}; }},
    {"assembly", [](Scenario& scenario) { scenario.active = DocumentType::Assembly; }},
    {"no-document", [](Scenario& scenario) { scenario.active.reset(); }},
    {"drawing", [](Scenario& scenario) { scenario.active = DocumentType::Drawing; }},
    {"old-revision", [](Scenario& scenario) { scenario.revision = "8.1.0"; }},
    {"empty-assembly",
     [](Scenario& scenario) {
         scenario.active = DocumentType::Assembly;
         scenario.componentsInAssembly = false;
     }},
    {"no-root",
     [](Scenario& scenario) {
         scenario.active = DocumentType::Assembly;
         scenario.rootInAssembly = false;
     }},
    {"part-without-body", [](Scenario& scenario) { scenario.bodyInPart = false; }},
    {"no-colors", [](Scenario& scenario) { scenario.colorsSet = false; }},
}};

[[noreturn]] void ThrowUnknown(const std::string& word) {
    throw RuntimeError(ErrorNumber::InvalidPropertyValue, "Unknown scenario: " + word);
}

std::size_t ReadCount(const std::string& word, const std::string& text) {
    const std::int32_t count = TextToInt32(text);
    if (count < 0 || count > kLargestCount)
        ThrowUnknown(word);
    return static_cast<std::size_t>(count);
}

void ApplySize(const std::string& word, Scenario& scenario) {
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos)
        ThrowUnknown(word);
    const std::string name = word.substr(0, equals);
    const std::size_t count = ReadCount(word, word.substr(equals + 1));
    if (name == "faces") {
        scenario.faces = count;
    } else if (name == "features") {
        scenario.features = count;
    } else if (name == "components") {
        scenario.components = count;
        scenario.active = DocumentType::Assembly;
    } else if (name == "standard-colors") {
        scenario.standardColors = count;
    } else {
        ThrowUnknown(word);
    }
}

void ApplyWord(const std::string& word, Scenario& scenario) {
    for (const Word& known : kWords)
        if (word == known.name)
            return known.apply(scenario);
    ApplySize(word, scenario);
}

} // namespace

void ApplyScenario(const std::string& text, Scenario& scenario) {
    for (const std::string& word : SplitFields(text, ","))
        ApplyWord(word, scenario);
}
