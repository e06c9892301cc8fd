#pragma once

#include "tests/fakes/FaultRuns.h"

// The ten commands, with what makes each of them do all that it does.
[[nodiscard]] inline std::vector<FaultyCommand> FaultyCommands() {
    const auto selectFace = [](StandInModel& model) { model.Part().FaceAt(0)->Select(true); };
    const auto selectFaceAndFeature = [](StandInModel& model) {
        model.Part().FaceAt(0)->Select(true);
        model.Part().FeatureAt(0)->Select(true);
    };
    const auto selectComponent = [](StandInModel& model) {
        model.Assembly().Root()->Children().front()->Select(true);
    };
    const auto readStandardColors = [](FakeProgram& program) {
        program.Main().RunCommand(IDM_mnuSWXGetStandardColor);
    };
    return {
        {"GetColor", "default", IDM_mnuSWXGetColor, selectFace},
        {"GetColorOfAComponent", "assembly", IDM_mnuSWXGetColor, selectComponent},
        {"NewColorUpdate", "default", IDM_mnuSWXNewColorUpdate, selectFace, {}, "picked"},
        {"SetColor", "default", IDM_mnuSWXSetColor, selectFaceAndFeature},
        {"SetColorComponent", "assembly", IDM_mnuSWXSetColorComponent, selectComponent},
        {"ClearColorFromSelection", "default", IDM_mnuSWXClearColorFromSelection,
         selectFaceAndFeature},
        {"ClearComponentColorFromSelection", "assembly", IDM_mnuSWXClearComponentColorFromSelection,
         selectComponent},
        {"ClearColorPart", "features=1,faces=1", IDM_mnuSWXClearColorPart},
        {"ClearColorAssembly", "components=2", IDM_mnuSWXClearColorAssembly},
        {"GetStandardColor", "standard-colors=1", IDM_mnuSWXGetStandardColor},
        {"SetStandardColor",
         "standard-colors=1",
         IDM_mnuSWXSetStandardColor,
         {},
         readStandardColors},
    };
}
