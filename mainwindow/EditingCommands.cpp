#include "mainwindow/EditingCommands.h"

#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "common/Text.h"
#include "common/ValueRestorer.h"
#include "mainwindow/ClipboardLine.h"

namespace {

[[noreturn]] void ThrowClipboardUnavailable() {
    throw RuntimeError(ErrorNumber::ClipboardUnavailable, ErrorTexts::ClipboardInUse);
}

} // namespace

void EditingCommands::DeleteColor(const std::optional<std::string>& colorKey) {
    const int index =
        parts_.library.GetColornodeIndex(colorKey ? *colorKey : parts_.list.SelectedKey());
    if (index == 0)
        return;
    if (parts_.settings.confirmDel &&
        !IsConfirmed(InfoTextNumber::ColorLabel, parts_.library.Colors().At(index).altName))
        return;
    // Whichever colour is deleted, it is the selected row that leaves the list, on purpose.
    parts_.list.ColorLeaves(index);
    parts_.library.Colors().Erase(index);
    parts_.list.RemoveSelected();
    parts_.panes.ShowColorPreview();
}

void EditingCommands::DeleteGroup(const std::optional<std::string>& groupKey) {
    const std::string key = groupKey ? *groupKey : parts_.library.Tree().Selected();
    if (parts_.library.Tree().Selected().empty() || !IsGroupKey(key))
        return;
    if (parts_.settings.confirmDel &&
        !IsConfirmed(InfoTextNumber::GroupLabel,
                     parts_.library.Tree().At(key).text + kLineBreak + ColorLines(key)))
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
    const std::string shownGroup = parts_.library.SelectedGroup();
    if (!mainKey && parts_.library.Tree().Selected() != key)
        parts_.library.Tree().Select(key);
    if (!parts_.settings.confirmDel ||
        IsConfirmed(InfoTextNumber::LibraryLabel,
                    parts_.library.Tree().At(key).text + kLineBreak)) {
        parts_.library.Colors().EraseGroups(parts_.library.GetGroupInMainnode(key));
        parts_.library.Tree().Remove(key);
    } else if (parts_.library.SelectedGroup() == shownGroup) {
        return; // list and editor stay as they are, with what was typed there
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
    const ValueRestorer withoutAsking(parts_.settings.confirmDel, false);
    DeleteColor();
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
    // A pasted colour always lands in the current group.  Where there is none yet, the user is
    // asked for library, group and colour, and that colour takes the values.
    const int before = parts_.library.Colors().UpperBound();
    if (parts_.library.NewColorNode({}, pasted->name, pasted->values) ||
        parts_.library.Colors().UpperBound() == before)
        return;
    const std::string made = parts_.list.SelectedKey();
    parts_.library.Colors().SetValues(parts_.library.GetColornodeIndex(made), pasted->values);
    parts_.panes.ShowColorNodes({}, made);
}

void EditingCommands::ShowInvalidFormat() {
    parts_.prompts.ShowMessage(
        parts_.texts.GetInfoText(InfoTextNumber::InvalidFormat) + " CLIPBOARD",
        MessageStyle::Exclamation, parts_.texts.GetInfoText(InfoTextNumber::Attention));
}
