#include "mainwindow/EditingCommands.h"

#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "common/Text.h"
#include "common/ValueRestorer.h"
#include "mainwindow/ClipboardLine.h"

void EditingCommands::DeleteColor(const std::optional<std::string>& colorKey) {
    const int index =
        parts_.library.GetColornodeIndex(colorKey ? *colorKey : parts_.list.SelectedKey());
    if (index == 0)
        return;
    if (!IsConfirmed(InfoTextNumber::ColorLabel, parts_.library.Colors().At(index).altName))
        return;
    // Whichever colour is deleted, it is the selected row that leaves the list, on purpose.
    parts_.library.Colors().Erase(index);
    parts_.list.RemoveSelected();
    parts_.panes.ShowColorPreview();
}

void EditingCommands::DeleteGroup(const std::optional<std::string>& groupKey) {
    const std::string key = groupKey ? *groupKey : parts_.library.Tree().Selected();
    if (parts_.library.Tree().Selected().empty() || !IsGroupKey(key))
        return;
    const std::string details = parts_.library.Tree().At(key).text + kLineBreak + ColorLines(key);
    if (!IsConfirmed(InfoTextNumber::GroupLabel, details))
        return;
    // The colours of a group go together: the list, which would lose its selected row for each of
    // them, is filled anew afterwards.
    parts_.library.Colors().EraseGroups({key});
    parts_.library.Tree().Remove(key);
    parts_.panes.ShowSelectedGroup();
}

void EditingCommands::DeleteMainNode(const std::optional<std::string>& mainKey) {
    const std::string key = mainKey ? *mainKey : parts_.library.GetActiveMainnode();
    if (key.empty())
        return;
    if (!mainKey && parts_.library.Tree().Selected() != key)
        parts_.library.Tree().Select(key);
    if (IsConfirmed(InfoTextNumber::LibraryLabel,
                    parts_.library.Tree().At(key).text + kLineBreak)) {
        parts_.library.Colors().EraseGroups(parts_.library.GetGroupInMainnode(key));
        parts_.library.Tree().Remove(key);
    }
    parts_.panes.ShowSelectedGroup();
}

void EditingCommands::DeleteSelectedNode() {
    if (IsGroupKey(parts_.library.Tree().Selected()))
        DeleteGroup();
    else
        DeleteMainNode();
}

bool EditingCommands::IsConfirmed(std::int32_t labelNumber, const std::string& details) {
    if (!parts_.settings.confirmDel)
        return true;
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

void EditingCommands::Copy() {
    const int index = parts_.library.GetColornodeIndex(parts_.list.SelectedKey());
    if (index == 0)
        return;
    if (!parts_.clipboard.SetText(ClipboardLine::Format(parts_.library.Colors().At(index))))
        throw RuntimeError(ErrorNumber::ClipboardUnavailable,
                           "The clipboard is in use by another program");
}

void EditingCommands::Cut() {
    Copy();
    const ValueRestorer withoutAsking(parts_.settings.confirmDel, false);
    DeleteColor();
}

void EditingCommands::Paste() {
    const std::string text = parts_.clipboard.Text().value_or("");
    if (!ClipboardLine::IsColor(text))
        return;
    const auto pasted = ClipboardLine::Parse(text);
    if (!pasted) {
        parts_.prompts.ShowMessage(
            parts_.texts.GetInfoText(InfoTextNumber::InvalidFormat) + " CLIPBOARD",
            MessageStyle::Exclamation, parts_.texts.GetInfoText(InfoTextNumber::Attention));
        return;
    }
    // A pasted colour always lands in the current group.
    if (!parts_.library.NewColorNode({}, pasted->name))
        return;
    const std::string key = parts_.list.SelectedKey();
    parts_.library.Colors().SetValues(parts_.library.GetColornodeIndex(key), pasted->values);
    parts_.panes.ShowSelectedGroup();
}
