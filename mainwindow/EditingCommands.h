#pragma once

#include "common/Settings.h"
#include "common/ports/Clipboard.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "library/ColorLibrary.h"
#include "mainwindow/ColorList.h"
#include "mainwindow/LibraryPanes.h"

#include <optional>
#include <string>

// The commands of the colour menu that change the library: deleting, copying, cutting and pasting.
// With nothing suitable selected they do nothing.  One confirmation covers a whole cascade.
class EditingCommands {
public:
    struct Parts {
        ColorLibrary& library;
        ColorList& list;
        LibraryPanes& panes;
        Settings& settings;
        Clipboard& clipboard;
        Prompts& prompts;
        InfoTexts& texts;
    };

    explicit EditingCommands(const Parts& parts) : parts_(parts) {}

    // Without a key each acts on the selection.
    void DeleteColor(const std::optional<std::string>& colorKey = {});
    void DeleteGroup(const std::optional<std::string>& groupKey = {});
    void DeleteMainNode(const std::optional<std::string>& mainKey = {});

    // The selected library or group.
    void DeleteSelectedNode();

    // Each throws RuntimeError when the clipboard cannot be written; nothing is deleted then.
    void Copy();
    void Cut();

    // A text that is no colour is ignored; one that is broken gives the invalid-format message.
    void Paste();

private:
    [[nodiscard]] bool IsConfirmed(std::int32_t labelNumber, const std::string& details);
    [[nodiscard]] std::string ColorLines(const std::string& groupKey) const;

    Parts parts_;
};
