#pragma once

#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"
#include "tests/standin/StandInClient.h"

#include <functional>
#include <string>
#include <vector>

// One of the program's SolidWorks commands as it is run again and again while calls go wrong.
struct FaultyCommand {
    const char* name;
    const char* scenario;
    int number;                                            // of the command
    std::function<void(const StandInClient&)> select = {}; // what is selected in SolidWorks
    std::function<void(FakeProgram&)> prepare = {};        // what the user has done before
    std::string typed = {};                     // what the user answers when asked for a text
    std::function<void(FakeProgram&)> run = {}; // instead of the command alone
};

// The whole program on fakes with a library of one group, worked through its commands.  Errors are
// reported as the form reports them.
class FaultyProgram {
public:
    // running: gets the running SolidWorks instead of the model.
    explicit FaultyProgram(const FaultyCommand& command, AutomationService* running = nullptr)
        : program(command.scenario, running), command_(command) {
        program.files.contents["C:\\a.tnt"] = "\"D#Lib=0D:1\"\r\n\"G#g=0DG1\"\r\n";
        program.registry.SetText(FakeProgram::Setting("DefaultColorFile"), "C:\\a.tnt");
        program.application.Start();
        program.Main().tree.NodeClicked("0DG1");
        program.prompts.typed = {"one"};
        program.Main().frame.RunCommand(IDM_mnuColorNewColor);
        if (command.prepare)
            command.prepare(program);
        if (command.select)
            command.select(
                StandInClient(program.automation.GetRunningObject(ProgramNames::SolidWorksClass)));
    }

    // Runs the command; what the user sees of its end: "status" (the text of success), a message
    // as "note: TEXT", an error as "error: TEXT", the levels that the window for them shows as
    // "levels: ...", or "nothing".
    std::string Run() {
        program.prompts.messages.clear();
        program.prompts.typed = {command_.typed};
        program.view.infoPanel.clear();
        program.progress.calls.clear();
        try {
            if (command_.run)
                command_.run(program);
            else
                program.Main().frame.RunCommand(command_.number);
        } catch (const RuntimeError& error) {
            program.errors.ReportError(error);
        }
        return Seen();
    }

    // Everything that the user has in the library and in the editor.
    [[nodiscard]] std::vector<std::string> State() {
        std::vector<std::string> state;
        for (const auto& [key, text] : program.view.nodes)
            state.push_back(key + "=" + text);
        for (int row = 0; row < program.view.rowCount; ++row)
            for (int column = 1; column <= 10; ++column)
                state.push_back(program.Main().rows.CellText(row, column));
        state.push_back(program.view.colorName);
        state.insert(state.end(), program.view.valueTexts.begin(), program.view.valueTexts.end());
        return state;
    }

    FakeProgram program;

private:
    [[nodiscard]] std::string Seen() const {
        std::string seen = program.view.infoPanel.empty() ? "" : "status";
        for (const FakePrompts::Message& message : program.prompts.messages) {
            const bool isError = message.style == 48;
            const std::string prefix = isError ? "<3>\r\n" : "";
            seen += (isError ? "error: " : "note: ") + message.prompt.substr(prefix.size());
        }
        const std::string levels = SeenLevels();
        seen += (seen.empty() || levels.empty() ? "" : " ") + levels;
        return seen.empty() ? "nothing" : seen;
    }
    [[nodiscard]] std::string SeenLevels() const {
        std::string seen;
        for (const LevelRow& row : program.levels.rows) {
            seen += seen.empty() ? "levels:" : ",";
            for (const std::string& cell : row.cells)
                seen += cell.empty() ? "" : " " + cell;
        }
        return seen;
    }

    FaultyCommand command_;
};

// What the user has when the command was refused: the library and the editor as they were, and for
// a new color what was made of the name before SolidWorks was asked.
[[nodiscard]] inline std::vector<std::string> StateOfRefusal(const FaultyCommand& command) {
    FaultyProgram faulty(command);
    faulty.program.service.SetRunning(false);
    faulty.Run();
    return faulty.State();
}
