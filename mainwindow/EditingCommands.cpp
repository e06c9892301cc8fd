#include "mainwindow/EditingCommands.h"

#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "common/Text.h"
#include "mainwindow/ClipboardLine.h"

namespace {

[[noreturn]] void ThrowClipboardUnavailable() {
    throw RuntimeError(ErrorNumber::ClipboardUnavailable, ErrorTexts::ClipboardInUse);
}

} // namespace

void EditingCommands::DeleteColor(const std::optional<std::string>& colorKey,
                                  Confirmation confirmation) {
    const int index =
        parts_.library.GetColornodeIndex(colorKey ? *colorKey : parts_.list.SelectedKey());
    if (index == 0)
        return;
    if (Asks(confirmation) &&
        !IsConfirmed(InfoTextNumber::ColorLabel, parts_.library.Colors().At(index).altName))
        return;
    // Whichever color is deleted, it is the selected row that leaves the list, on purpose.
    parts_.list.ColorLeaves(index);
    parts_.library.Colors().Erase(index);
    parts_.list.RemoveSelected();
    parts_.panes.ShowColorPreview();
}

void EditingCommands::DeleteGroup(const std::optional<std::string>& groupKey,
                                  Confirmation confirmation) {
    const LibraryTree& tree = parts_.library.Tree();
    const std::string key = groupKey ? *groupKey : tree.Selected();
    if (tree.Selected().empty() || !tree.IsGroup(key))
        return;
    if (Asks(confirmation) &&
        !IsConfirmed(InfoTextNumber::GroupLabel, tree.At(key).text + kLineBreak + ColorLines(key)))
        return;
    // The colors of a group go together: the list, which would lose its selected row for each of
    // them, is filled anew afterwards.
    parts_.library.Colors().EraseGroups({key});
    parts_.library.Tree().Remove(key);
    parts_.panes.ShowColorNodes();
}

void EditingCommands::DeleteMainNode(const std::optional<std::string>& mainKey,
                                     Confirmation confirmation) {
    const std::string key = mainKey ? *mainKey : parts_.library.GetActiveMainnode();
    if (key.empty())
        return;
    const std::string shownGroup = parts_.library.SelectedGroup();
    if (!mainKey && parts_.library.Tree().Selected() != key)
        parts_.library.Tree().Select(key);
    if (!Asks(confirmation) || IsConfirmed(InfoTextNumber::LibraryLabel,
                                           parts_.library.Tree().At(key).text + kLineBreak)) {
        parts_.library.RemoveMainNode(key);
    } else if (parts_.library.SelectedGroup() == shownGroup) {
        return; // list and editor stay as they are, with what was typed there
    }
    parts_.panes.ShowColorNodes();
}

void EditingCommands::DeleteSelectedNode(Confirmation confirmation) {
    if (parts_.library.Tree().IsGroup(parts_.library.Tree().Selected()))
        DeleteGroup({}, confirmation);
    else
        DeleteMainNode({}, confirmation);
}

bool EditingCommands::IsConfirmed(std::int32_t labelNumber, const std::string& details) {
    const std::string prompt = parts_.texts.GetInfoText(InfoTextNumber::AskDelete) + kLineBreak +
                               parts_.texts.GetInfoText(labelNumber) + kLineBreak + details;
    return parts_.prompts.ShowMessage(prompt, MessageStyle::ConfirmDelete,
                                      parts_.texts.GetInfoText(InfoTextNumber::Attention)) ==
           Answer::Ok;
}

std::string EditingCommands::ColorLines(const std::string& groupKey) const {
    std::string lines;
    for (const int index : parts_.library.GetColorIndexInGroup(groupKey)) {
        const ColorRecord& color = parts_.library.Colors().At(index);
        lines += color.altName + " (" + color.key + ")" + kLineBreak;
    }
    return lines;
}

std::optional<std::string> EditingCommands::CopyLine() {
    const int index = parts_.library.GetColornodeIndex(parts_.list.SelectedKey());
    if (index == 0)
        return {};
    std::string line = ClipboardLine::Format(parts_.library.Colors().At(index));
    if (!parts_.clipboard.SetText(line))
        ThrowClipboardUnavailable();
    return line;
}

std::optional<std::string> EditingCommands::CutLine() {
    std::optional<std::string> line = CopyLine();
    if (!line)
        return {};
    const int index = parts_.library.GetColornodeIndex(parts_.list.SelectedKey());
    if (!ClipboardLine::GivesBack(*line, parts_.library.Colors().At(index))) {
        ShowInvalidFormat();
        return {};
    }
    if (parts_.clipboard.Text() != line)
        ThrowClipboardUnavailable();
    DeleteColor({}, Confirmation::None);
    return line;
}

void EditingCommands::CopyInto(const std::string& groupKey) {
    PasteInto(groupKey, CopyLine());
}

void EditingCommands::MoveInto(const std::string& groupKey) {
    PasteInto(groupKey, CutLine());
}

void EditingCommands::PasteInto(const std::string& groupKey,
                                const std::optional<std::string>& line) {
    if (!line)
        return;
    if (!ClipboardLine::Parse(*line)) { // so that tree and list stay where they are
        ShowInvalidFormat();
        return;
    }
    parts_.library.Tree().Select(groupKey);
    PasteLine(*line);
}

void EditingCommands::Paste() {
    const std::optional<std::string> text = parts_.clipboard.Text();
    if (!text)
        ThrowClipboardUnavailable();
    PasteLine(*text);
}

void EditingCommands::PasteLine(const std::string& line) {
    if (!ClipboardLine::IsColor(line))
        return;
    const auto pasted = ClipboardLine::Parse(line);
    if (!pasted) {
        ShowInvalidFormat();
        return;
    }
    // A pasted color always lands in the current group.  Where there is none yet, the user is
    // asked for library, group and color, and that color takes the values.
    parts_.newNodes.NewColorNode(pasted->name, pasted->values);
}

void EditingCommands::ShowInvalidFormat() {
    parts_.prompts.ShowMessage(
        parts_.texts.GetInfoText(InfoTextNumber::InvalidFormat) + " CLIPBOARD",
        MessageStyle::Exclamation, parts_.texts.GetInfoText(InfoTextNumber::Attention));
}
