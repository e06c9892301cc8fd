#pragma once

#include "standin/model/Document.h"

#include <optional>
#include <string>

// What a stand-in starts with.
struct Scenario {
    std::string revision = "12.5.0";
    // The document that is active; none means that there is no active document.
    std::optional<DocumentType> active = DocumentType::Part;
    bool componentsInAssembly = true; // false: the root component has no children
    bool rootInAssembly = true;       // false: the configuration has no root component
    bool bodyInPart = true;
    bool colorsSet = true; // false: nothing carries a color of its own
    // Generated documents of this size instead of the samples.
    std::optional<std::size_t> faces;
    std::optional<std::size_t> features;
    std::optional<std::size_t> components;
    std::optional<std::size_t> standardColors; // generated tables of this size
};

// Changes the scenario as the words of `text` say, which are separated by commas: "default",
// "assembly", "no-document", "drawing", "old-revision", "empty-assembly", "no-root",
// "part-without-body", "no-colors", "faces=N", "features=N", "components=N", "standard-colors=N".
// Throws RuntimeError InvalidPropertyValue for any other word.
void ApplyScenario(const std::string& text, Scenario& scenario);
