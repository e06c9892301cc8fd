#pragma once

#include "common/Settings.h"
#include "common/ports/Clipboard.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "library/ColorLibrary.h"
#include "mainwindow/ColorList.h"
#include "mainwindow/LibraryPanes.h"
#include "mainwindow/NewNodes.h"

#include <optional>
#include <string>

// The commands of the color menu that change the library: deleting, copying, cutting and pasting.
// With nothing suitable selected they do nothing.  One confirmation covers a whole cascade.
class EditingCommands {
public:
    struct Parts {
        ColorLibrary& library;
        ColorList& list;
        LibraryPanes& panes;
        NewNodes& newNodes;
        const Settings& settings;
        Clipboard& clipboard;
        Prompts& prompts;
        InfoTexts& texts;
    };

    explicit EditingCommands(const Parts& parts) : parts_(parts) {}

    // Whether a deletion asks first: as the user has set it, or never.
    enum class Confirmation { AsSet, None };

    // Without a key each acts on the selection.
    void DeleteColor(const std::optional<std::string>& colorKey = {},
                     Confirmation confirmation = Confirmation::AsSet);
    void DeleteGroup(const std::optional<std::string>& groupKey = {},
                     Confirmation confirmation = Confirmation::AsSet);
    void DeleteMainNode(const std::optional<std::string>& mainKey = {},
                        Confirmation confirmation = Confirmation::AsSet);

    // The selected library or group.
    void DeleteSelectedNode(Confirmation confirmation);

    // Each throws RuntimeError when the clipboard cannot be written.  A color is cut only when its
    // copy stands on the clipboard and a paste would make the same color of it: one that a paste
    // would refuse or change gives the invalid-format message at once and stays.
    void Copy() { static_cast<void>(CopyLine()); }
    void Cut() { static_cast<void>(CutLine()); }

    // A text that is no color is ignored; one that is broken gives the invalid-format message.
    // Throws RuntimeError when the clipboard cannot be read.
    void Paste();

    // Copy or cut, then a paste into the group, which is selected.  What is pasted is what was
    // copied, whatever another program puts on the clipboard meanwhile.
    void CopyInto(const std::string& groupKey);
    void MoveInto(const std::string& groupKey);

private:
    [[nodiscard]] bool Asks(Confirmation confirmation) const noexcept {
        return confirmation == Confirmation::AsSet && parts_.settings.confirmDel;
    }
    [[nodiscard]] bool IsConfirmed(std::int32_t labelNumber, const std::string& details);
    [[nodiscard]] std::string ColorLines(const std::string& groupKey) const;
    // The line on the clipboard; nothing when none was put there.
    [[nodiscard]] std::optional<std::string> CopyLine();
    [[nodiscard]] std::optional<std::string> CutLine();
    void PasteInto(const std::string& groupKey, const std::optional<std::string>& line);
    void PasteLine(const std::string& line);
    void ShowInvalidFormat();

    Parts parts_;
};
