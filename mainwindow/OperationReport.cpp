#include "mainwindow/OperationReport.h"

#include "common/InfoTextNumber.h"
#include "common/ProgramNames.h"
#include "solidworks/ResultKey.h"

#include <algorithm>
#include <array>

namespace {

// In this wording whatever the user's language.
constexpr const char* kStatusOkay = "Okay setzen in SolidWorks";

struct RefusalText {
    ResultKind kind;
    std::int32_t textNumber;
};

constexpr std::array kRefusalTexts = {
    RefusalText{ResultKind::NoSolidWorks, InfoTextNumber::NoSolidWorks},
    RefusalText{ResultKind::NoActiveDocument, InfoTextNumber::NoActiveDocument},
    RefusalText{ResultKind::NoPartOrAssembly, InfoTextNumber::NoPartOrAssembly},
    RefusalText{ResultKind::RevisionTooLow, InfoTextNumber::RevisionTooLow},
    RefusalText{ResultKind::NoPart, InfoTextNumber::NoPart},
    RefusalText{ResultKind::NoAssembly, InfoTextNumber::NoAssembly},
    RefusalText{ResultKind::LevelsChanged, InfoTextNumber::LevelsChanged},
};

} // namespace

void OperationReport::ShowMessage(const std::string& text) const {
    if (parts_.activity.endRequested)
        return;
    parts_.prompts.ShowMessage(text, MessageStyle::Information,
                               ProgramNames::SolidWorksMessageTitle);
}

bool OperationReport::ReportRefusal(const std::string& resultKey) const {
    const auto refusal =
        std::ranges::find(kRefusalTexts, KindOfResult(resultKey), &RefusalText::kind);
    if (refusal == kRefusalTexts.end())
        return false;
    ShowMessage(parts_.texts.GetInfoText(refusal->textNumber));
    return true;
}

void OperationReport::Report(const std::string& resultKey) const {
    if (KindOfResult(resultKey) == ResultKind::Okay)
        parts_.bars.SetInfoPanelText(kStatusOkay);
    else if (!ReportRefusal(resultKey))
        ShowMessage(resultKey);
}
