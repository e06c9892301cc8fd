#pragma once

#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "library/ColorLibrary.h"
#include "mainwindow/ColorEditor.h"
#include "mainwindow/LibraryPanes.h"

#include <cstdint>
#include <string>

// New libraries, groups and colors by the user, who is asked for their names.  What was made is
// selected and shown.
class NewNodes {
public:
    struct Parts {
        ColorLibrary& library;
        LibraryPanes& panes;
        const ColorEditor& editor;
        Prompts& prompts;
        InfoTexts& texts;
    };

    explicit NewNodes(const Parts& parts) : parts_(parts) {}

    // Goes on to make the first group and its first color.  False when the user cancelled the name
    // of the library.
    bool NewMainNode();

    // In the library of the tree's selection; goes on to make the group's first color.  Without a
    // selection a library is made instead.  Throws RuntimeError DuplicateKey when the group's
    // number is taken.
    void NewGroupNode();

    // With the editor's values, in the selected group or the first one of the selected library.
    // Where there is no group, one is made instead, and without a selection a library; both ask for
    // their first color themselves.
    void NewColorNode();

    // The same with a name and values that are there already: a color that is made with a new group
    // gets its name from the user and these values.
    void NewColorNode(const std::string& name, const ColorValueArray& values);

private:
    [[nodiscard]] std::string AskGroupName(const std::string& mainKey);
    void AddGroup(const std::string& mainKey, const std::string& name); // empty: none
    void AskAndAddColor(const std::string& groupKey);
    void AddColor(const std::string& groupKey, const std::string& name,
                  const ColorValueArray& values);
    // The group that takes a color, selected.  Empty: there was none, and library or group were
    // asked for.
    [[nodiscard]] std::string GroupForColor();
    [[nodiscard]] std::string AskName(std::int32_t textNumber, const std::string& preset);
    [[nodiscard]] std::string SelectMainNodeUpwards();

    Parts parts_;
};
