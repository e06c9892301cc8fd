#pragma once

#include "tests/fakes/FaultRuns.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <vector>

// What is selected in SolidWorks before a command.
namespace FaultySelection {

inline void AFace(const StandInClient& client) {
    client.Face(0)->Invoke("Select", {true});
}
inline void AFeature(const StandInClient& client) {
    client.Feature(0)->Invoke("Select", {true});
}
inline void AFaceAndAFeature(const StandInClient& client) {
    AFace(client);
    AFeature(client);
}
inline void AComponent(const StandInClient& client) {
    client.Child(0)->Invoke("Select", {true});
}

inline AutomationObjectPtr ModelOfAComponent(const StandInClient& client) {
    return client.Child(0)->Get("GetModelDoc").AsObject();
}
inline void AFeatureOfAComponent(const StandInClient& client) {
    ModelOfAComponent(client)->Get("FirstFeature").AsObject()->Invoke("Select", {true});
}
inline void AFaceOfAComponent(const StandInClient& client) {
    ModelOfAComponent(client)
        ->Get("Body")
        .AsObject()
        ->Get("GetFirstFace")
        .AsObject()
        ->Invoke("Select", {true});
}

} // namespace FaultySelection

// What the user has done before a command: the table as a group, as it is, and then changed.
namespace FaultyGroup {

inline void AsTheTable(FakeProgram& program) {
    program.Main().frame.RunCommand(IDM_mnuSWXGetStandardColor);
}
inline void WithAnotherName(FakeProgram& program) {
    AsTheTable(program);
    program.Main().list.RowLabelEdited(0, "another");
}
inline void WithOneMore(FakeProgram& program) {
    AsTheTable(program);
    program.prompts.typed = {"one more"};
    program.Main().frame.RunCommand(IDM_mnuColorNewColor);
}

} // namespace FaultyGroup

// The window of levels: reads them, and then has the color of a row's level cleared.  Each has a
// color again before, and for the second row the user selects the face again: a clear of its
// feature that fails may leave that one selected.
namespace FaultyLevels {

inline constexpr MaterialValues kColor{0.2, 0.4, 0.6, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6};

template <int Row>
void ReadAndClear(FakeProgram& program) {
    program.solidWorks.Part().FaceAt(0)->SetColor(kColor);
    if (Row == 1)
        program.solidWorks.Part().FaceAt(0)->Select(false);
    program.solidWorks.Part().FeatureAt(0)->SetColor(kColor);
    program.solidWorks.Assembly().Root()->Children().front()->SetColor(kColor);
    program.Main().frame.RunCommand(IDM_mnuSWXColorLevels);
    program.application.LevelsWindowEvents().ClearClicked(Row);
}

} // namespace FaultyLevels

// Commands that move colors, with what makes each of them do all that it does.
[[nodiscard]] inline std::vector<FaultyCommand> FaultyColorCommands() {
    using namespace FaultySelection;
    using namespace FaultyGroup;
    const char* const table = "standard-colors=1";
    return {
        {"GetColor", "default", IDM_mnuSWXGetColor, AFace},
        {"GetColorOfTheDocument", "default", IDM_mnuSWXGetColor},
        {"GetColorOfAFeature", "default", IDM_mnuSWXGetColor, AFeature},
        {"GetColorOfAComponent", "assembly", IDM_mnuSWXGetColor, AComponent},
        {"NewColorUpdate", "default", IDM_mnuSWXNewColorUpdate, AFace, {}, "picked"},
        {"SetColor", "default", IDM_mnuSWXSetColor, AFaceAndAFeature},
        {"SetColorOfTheDocument", "default", IDM_mnuSWXSetColor},
        {"SetColorOfAComponent", "assembly", IDM_mnuSWXSetColor, AComponent},
        {"SetColorComponent", "assembly", IDM_mnuSWXSetColorComponent, AComponent},
        {"ClearColorFromSelection", "default", IDM_mnuSWXClearColorFromSelection, AFaceAndAFeature},
        {"ClearColorOfAComponent", "assembly", IDM_mnuSWXClearColorFromSelection, AComponent},
        {"ClearComponentColorFromSelection", "assembly", IDM_mnuSWXClearComponentColorFromSelection,
         AComponent},
        {"ClearComponentColorOfAnOldRevision", "assembly,old-revision",
         IDM_mnuSWXClearComponentColorFromSelection, AComponent},
        {"ClearColorPart", "features=1,faces=1", IDM_mnuSWXClearColorPart},
        {"ClearColorAssembly", "components=2", IDM_mnuSWXClearColorAssembly},
        {"GetStandardColor", table, IDM_mnuSWXGetStandardColor},
        {"SetStandardColor", table, IDM_mnuSWXSetStandardColor, {}, AsTheTable},
        {"SetStandardColorOfAnotherName", table, IDM_mnuSWXSetStandardColor, {}, WithAnotherName},
        {"SetStandardColorOfAnotherSize", table, IDM_mnuSWXSetStandardColor, {}, WithOneMore},
    };
}

// Reading the levels of every kind of selection, and taking a color off each that can be.
[[nodiscard]] inline std::vector<FaultyCommand> FaultyLevelCommands() {
    using namespace FaultySelection;
    const auto clear = FaultyLevels::ReadAndClear<0>;
    const auto clearSecond = FaultyLevels::ReadAndClear<1>;
    return {
        {"ColorLevels", "default", IDM_mnuSWXColorLevels, AFace},
        {"ColorLevelsOfTheDocument", "default", IDM_mnuSWXColorLevels},
        {"ColorLevelsOfAFeature", "default", IDM_mnuSWXColorLevels, AFeature},
        {"ColorLevelsOfAComponent", "assembly", IDM_mnuSWXColorLevels, AComponent},
        {"ColorLevelsOfAFaceOfAComponent", "assembly", IDM_mnuSWXColorLevels, AFaceOfAComponent},
        {"ClearLevelOfAFace", "default", IDM_mnuSWXColorLevels, AFaceAndAFeature, {}, {}, clear},
        {"ColorLevelsOfAnAssembly", "assembly", IDM_mnuSWXColorLevels},
        {"ColorLevelsOfAFeatureOfAComponent", "assembly", IDM_mnuSWXColorLevels,
         AFeatureOfAComponent},
        {"ClearLevelOfTheFeatureOfAFace",
         "default",
         IDM_mnuSWXColorLevels,
         AFace,
         {},
         {},
         clearSecond},
        {"ClearLevelOfTheComponentOfAFace",
         "assembly",
         IDM_mnuSWXColorLevels,
         AFaceOfAComponent,
         {},
         {},
         clear},
        {"ClearLevelOfAFeature", "default", IDM_mnuSWXColorLevels, AFeature, {}, {}, clear},
        {"ClearLevelOfAComponent", "assembly", IDM_mnuSWXColorLevels, AComponent, {}, {}, clear},
    };
}

// All commands.
[[nodiscard]] inline std::vector<FaultyCommand> FaultyCommands() {
    std::vector<FaultyCommand> commands = FaultyColorCommands();
    std::ranges::move(FaultyLevelCommands(), std::back_inserter(commands));
    return commands;
}

[[nodiscard]] inline FaultyCommand FaultyCommandNamed(std::string_view name) {
    for (const FaultyCommand& command : FaultyCommands())
        if (command.name == name)
            return command;
    throw std::out_of_range(std::string(name));
}
