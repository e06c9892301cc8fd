#pragma once

#include "mainwindow/HistoryStep.h"
#include "mainwindow/PaletteCommands.h"
#include "tests/fakes/LibraryOnFakes.h"
#include "tests/fakes/LibraryOutline.h"

#include <functional>
#include <string>
#include <vector>

// A user who does what comes to mind, on a program in memory.  What changes the libraries is a step
// of the history, as it is for the main window.
class RandomUser : public LibraryOnFakes {
public:
    // choose: a number from 0 to below its argument.  What the user does follows from it.
    using Choose = std::function<unsigned(unsigned)>;

    explicit RandomUser(Choose choose) : choose_(std::move(choose)) {
        library.Tree().Observe(&view);
        settings.confirmDel = true;
        editor.ShowInitialColor();
        files.contents["C:\\a.tnt"] = "\"D#Opened=0D:3\"\r\n\"G#g=0DG1\"\r\n\"G#h=0DG2\"\r\n" +
                                      ColorLine("0DG1", "c") + ColorLine("0DG2", "d") +
                                      ColorLine("0DG1", "e");
        files.contents["C:\\broken.tnt"] = "\"D#Broken=0D:1\"\r\n\"G#g=0DG1\"\r\n\"E#\"\r\n";
    }
    ~RandomUser() { library.Tree().Observe(nullptr); }

    // One of the commands that are steps.  Some are refused, cancelled or find nothing to do.
    void DoStep() {
        prompts.messages.clear();
        prompts.questions.clear();
        prompts.typed = {Name(), Name(), Name()};
        prompts.answers = {choose_(4) == 0 ? Answer::Cancel : Answer::Ok};
        const auto& steps = Steps();
        const auto& step = steps[choose_(static_cast<unsigned>(steps.size()))];
        try {
            const HistoryStep recorded(library.History(), panes, {.command = 1});
            step(*this);
        } catch (const RuntimeError&) { // a group's number that is taken
        }
        prompts.typed.clear();
        prompts.answers.clear();
    }

    // What is no step and changes only what is looked at.
    void LookAround() {
        if (const std::string node = AnyNode(); !node.empty())
            panes.NodeClicked(node);
        if (list.RowCount() > 0)
            panes.RowClicked(static_cast<int>(choose_(static_cast<unsigned>(list.RowCount()))));
    }

    // What is no step and works with files.
    void OpenOrSave() {
        switch (choose_(4)) {
        case 0:
            Open("C:\\a.tnt");
            break;
        case 1:
            Open("C:\\broken.tnt");
            break;
        case 2:
            commands.mnuFileSave_Click();
            break;
        default:
            prompts.chosenFiles.emplace_back("C:\\saved" + std::to_string(choose_(3)) + ".tnt");
            commands.mnuFileSaveAs_Click();
            break;
        }
        prompts.chosenFiles.clear();
    }

    void Undo() { panes.Show(library.History().Undo()); }
    void Redo() { panes.Show(library.History().Redo()); }

    // What the libraries hold, and what groups remember.
    [[nodiscard]] std::string Libraries() const {
        std::string text;
        for (const std::string& line : OutlineOf(library))
            text += line + "\n";
        for (const std::string& main : library.Tree().MainNodes())
            for (const std::string& group : library.GetGroupInMainnode(main))
                text += group + " remembers " + library.Tree().At(group).lastColor + "\n";
        return text;
    }

    // What tree and list show, and whether the tree shows what there is.
    [[nodiscard]] std::string Shown() const {
        std::string text = "selected " + library.Tree().Selected() + " " + view.selectedNode + "\n";
        for (const auto& [key, name] : view.nodes)
            text += "node " + key + " " + name + "\n";
        for (const auto& [parent, keys] : view.children)
            for (const std::string& key : keys)
                text += "in " + parent + ": " + key + "\n";
        for (int row = 0; row < list.RowCount(); ++row)
            text += "row " + list.KeyOfRow(row) + "\n";
        return text + "selected row " + list.SelectedKey();
    }

    // The bytes of every library as it would be saved.
    [[nodiscard]] std::vector<std::string> SavedBytes() const {
        UnheardProgress unheard;
        std::vector<std::string> bytes;
        for (const std::string& main : library.Tree().MainNodes())
            bytes.push_back(filesOfLibrary.Compose(main, unheard).bytes);
        return bytes;
    }

private:
    using Step = void (*)(RandomUser&);

    static std::string ColorLine(const std::string& group, const std::string& name) {
        std::string line = "\"E#" + name + "=" + group + ":" + name;
        for (int value = 1; value <= 9; ++value)
            line += "\xF7" + std::to_string(value);
        return line + "\"\r\n";
    }

    std::string Name() {
        return choose_(5) == 0 ? std::string() : "n" + std::to_string(choose_(100));
    }
    std::string AnyNode() {
        std::vector<std::string> keys;
        for (const std::string& main : library.Tree().MainNodes()) {
            keys.push_back(main);
            for (const std::string& group : library.GetGroupInMainnode(main))
                keys.push_back(group);
        }
        return keys.empty() ? std::string() : keys[choose_(static_cast<unsigned>(keys.size()))];
    }
    std::string AnyGroup() {
        const std::string node = AnyNode();
        return library.Tree().IsGroup(node) ? node : std::string();
    }
    void ImportStandardColors() {
        const std::string main = library.GetActiveMainnode();
        if (main.empty())
            return;
        const std::string group = library.NewGroupNode(main, "imported");
        library.Tree().SetUnsaved(main);
        std::vector<ColorRecord> colors(choose_(4));
        library.AppendColors(group, colors);
        library.Tree().Select(group);
        panes.ShowColorNodes(group);
    }

    void ImportPalettes() {
        std::string table = "group,name,r,g,b\n";
        for (unsigned left = choose_(4); left > 0; --left)
            table += Name() + "," + Name() + ",1,2," + std::to_string(choose_(256)) + "\n";
        files.contents["C:\\palette.csv"] = table;
        prompts.chosenFileSets = {{"C:\\palette.csv", "C:\\missing.gpl", "C:\\palette.csv"}};
        if (choose_(2) == 0)
            palettes.mnuFileImport_Click();
        else
            palettes.mnuFileImportGroups_Click();
    }

    static const std::vector<Step>& Steps() {
        using User = RandomUser&;
        static const std::vector<Step> steps = {
            [](User user) { user.newNodes.NewMainNode(); },
            [](User user) { user.newNodes.NewGroupNode(); },
            [](User user) { user.newNodes.NewColorNode(); },
            [](User user) { user.newNodes.NewColorNode(); },
            [](User user) { user.newNodes.NewColorNode(); },
            [](User user) {
                if (const std::string node = user.AnyNode(); !node.empty())
                    user.panes.NodeLabelEdited(node, user.Name());
            },
            [](User user) {
                if (user.list.SelectedRow())
                    user.panes.RowLabelEdited(*user.list.SelectedRow(), user.Name());
            },
            [](User user) { user.editing.DeleteColor(); },
            [](User user) { user.editing.DeleteGroup(); },
            [](User user) { user.editing.DeleteMainNode(); },
            [](User user) { user.commands.mnuFileClose_Click(); },
            [](User user) {
                user.editor.SetText(user.choose_(9), std::to_string(user.choose_(100)));
                user.panes.UpdateFromColorPreview();
            },
            [](User user) { user.editing.Cut(); },
            [](User user) { user.editing.Paste(); },
            [](User user) {
                if (const std::string group = user.AnyGroup(); !group.empty())
                    user.editing.MoveInto(group);
            },
            [](User user) {
                if (const std::string group = user.AnyGroup(); !group.empty())
                    user.editing.CopyInto(group);
            },
            [](User user) { user.ImportStandardColors(); },
            [](User user) { user.ImportPalettes(); },
        };
        return steps;
    }

    Choose choose_;
    PaletteCommands palettes{{.library = library,
                              .panes = panes,
                              .editor = editor,
                              .bars = view,
                              .frame = view,
                              .files = files,
                              .codePage = codePage,
                              .settings = settings,
                              .prompts = prompts,
                              .texts = texts}};
};
