#include "common/ColorNumber.h"
#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "common/Text.h"
#include "solidworks/ResultKey.h"
#include "solidworks/SolidWorksSession.h"
#include "solidworks/WalkProgress.h"
#include "solidworks/modSldTools.h"

#include <limits>

// The document's table of named standard colors.

namespace {

constexpr const char* kQuestionTitle = "TNT4SWX";

// A number of 32 bits, with or without a sign.
ColorNumber ReadColorNumber(const AutomationAnswer& answer) {
    const double number = answer.AsDouble();
    if (!(number >= std::numeric_limits<std::int32_t>::min() &&
          number <= std::numeric_limits<ColorNumber>::max()))
        throw RuntimeError(ErrorNumber::Overflow, ErrorTexts::NumberOutOfRange,
                           {Quoted(answer.AsString()),
                            std::to_string(std::numeric_limits<std::int32_t>::min()),
                            std::to_string(std::numeric_limits<ColorNumber>::max())},
                           answer.Member());
    return static_cast<ColorNumber>(static_cast<std::int64_t>(number));
}

ColorRecord ReadEntry(AutomationObject& table, std::int32_t index) {
    ColorRecord color;
    color.name = table.Get("GetNameAtIndex", {index}).AsString();
    const RedGreenBlue parts =
        SplitColorNumber(ReadColorNumber(table.Get("GetColorRefAtIndex", {index})));
    color.values[0] = static_cast<std::int16_t>(parts.red);
    color.values[1] = static_cast<std::int16_t>(parts.green);
    color.values[2] = static_cast<std::int16_t>(parts.blue);
    return color;
}

void WriteEntry(AutomationObject& table, std::int32_t index, const ColorRecord& color) {
    const ColorNumber number = MakeColorNumber(color.values[0], color.values[1], color.values[2]);
    table.Invoke("SetColorRefAtIndex", {index, static_cast<std::int32_t>(number), std::int32_t{0}});
}

} // namespace

std::string modSldTools::SWXGetStandardColors(std::vector<ColorRecord>& colors) {
    ports_.stopFlag = false;
    SolidWorksSession session(ports_.service);
    if (std::string refusal = session.TakeDocument(DocumentDemand::Any); !refusal.empty())
        return refusal;
    const AutomationObjectPtr table = RequiredObject(session.Document().Get("GetColorTable"));
    const std::int32_t count = table->Get("GetStandardCount").AsInt32();
    colors.clear();
    const auto readEntries = [&](WalkProgress& walk) {
        for (std::int32_t index = 0; index < count; ++index) {
            walk.BeginItem();
            colors.push_back(ReadEntry(*table, index));
            walk.Advance();
        }
    };
    return Walk(InfoTextNumber::ReadingStandardColors, count, readEntries)
               ? ResultKey::StandardColorsOkay
               : ResultKey::ProgressStopped;
}

std::string modSldTools::SWXSetStandardColors(const std::vector<ColorRecord>& colors) {
    SolidWorksSession session(ports_.service);
    if (std::string refusal = session.TakeDocument(DocumentDemand::Any); !refusal.empty())
        return refusal;
    const AutomationObjectPtr table = RequiredObject(session.Document().Get("GetColorTable"));
    const std::int32_t count = table->Get("GetStandardCount").AsInt32();
    if (count != static_cast<std::int32_t>(colors.size()) &&
        !AskContinue(InfoTextNumber::StandardColorsDifferInSize))
        return ResultKey::NoValidColorScheme;
    for (std::int32_t index = 0; index < count; ++index) {
        const std::string name = table->Get("GetNameAtIndex", {index}).AsString();
        if (static_cast<std::size_t>(index) >= colors.size())
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange, ErrorTexts::NoColorForEntry,
                               {std::to_string(index + 1)});
        const ColorRecord& color = colors[static_cast<std::size_t>(index)];
        if (color.name == name)
            WriteEntry(*table, index, color);
        else if (!AskContinue(InfoTextNumber::StandardColorNamesDiffer))
            return ResultKey::NoValidColorName;
    }
    return ResultKey::StandardColorsOkay;
}

bool modSldTools::AskContinue(std::int32_t textNumber) {
    const std::string prompt = ports_.texts.GetInfoText(textNumber) + kLineBreak +
                               ports_.texts.GetInfoText(InfoTextNumber::AskContinue);
    return ports_.prompts.ShowMessage(prompt, MessageStyle::InformationOkCancel, kQuestionTitle) ==
           Answer::Ok;
}
