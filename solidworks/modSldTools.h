#pragma once

#include "common/BusyRetry.h"
#include "common/ColorRecord.h"
#include "common/ports/AutomationObject.h"
#include "common/ports/EventPump.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/ProgressView.h"
#include "common/ports/Prompts.h"
#include "solidworks/LevelColors.h"

#include <functional>
#include <string>
#include <vector>

class SolidWorksSelection;
class SolidWorksSession;
class WalkProgress;

// The operations on the running SolidWorks.  Each attaches anew, checks the active document,
// does its work and returns a result key (ResultKey).  Only the attachment is guarded: every later
// call that fails throws RuntimeError.
class modSldTools {
public:
    struct Ports {
        AutomationService& service;
        BusyRetry& retry; // repeats the service's calls
        Prompts& prompts;
        InfoTexts& texts;
        ProgressView& progress;
        EventPump& events;
        bool& stopFlag; // set by the progress window's Stop button
    };

    explicit modSldTools(const Ports& ports) : ports_(ports) {}

    // Fills the record from the first selected object, or from the document when nothing is
    // selected. The record stays as it was unless the result is ResultKey::ColorRead.
    std::string SWXGetColor(ColorRecord& color);

    // Colors every selected face, feature and component, or the document when nothing is selected.
    std::string SWXSetColor(const ColorRecord& color);

    // Colors the components that own the selected objects.
    std::string SWXSetColorComponent(const ColorRecord& color);

    // Takes the colors off the selected faces, features and components.
    std::string SWXClearColor();

    // Takes the colors off the components that own the selected objects.
    std::string SWXClearComponentColor();

    // Takes the colors off every feature and face of the active part.
    std::string SWXClearColorPart();

    // Takes the colors off the direct children of the active assembly's root component.  It does
    // not descend, on purpose: sub-assemblies keep the colors of their own components.
    std::string SWXClearColorAssembly();

    // Names and red, green, blue of the color table's standard colors; those that were read so
    // far when the user stops it.
    std::string SWXGetStandardColors(std::vector<ColorRecord>& colors);

    // Writes red, green and blue into the color table, entry by entry, where the names agree.
    std::string SWXSetStandardColors(const std::vector<ColorRecord>& colors);

    // Reads the levels of the first selected object, or those of the document when nothing is
    // selected; there are none unless the result is ResultKey::ColorRead.
    std::string SWXReadLevels(LevelColors& colors);

    // Takes the color off one level, which must be one that can be cleared.  colors: the levels as
    // the user has seen them.  They are read anew before; when they are other ones by now, nothing
    // is cleared (ResultKey::LevelsChanged).  At the end they are those that were read last.
    std::string SWXClearLevel(LevelKind kind, LevelColors& colors);

private:
    void ClearSelectedObject(const SolidWorksSession& session, const SolidWorksSelection& selection,
                             std::int32_t index, std::string& report);
    void ClearComponent(const SolidWorksSession& session, AutomationObject& component,
                        std::string& report);
    // Each false when the user stopped the walk.
    bool Walk(std::int32_t labelText, std::int32_t maximum,
              const std::function<void(WalkProgress&)>& items);
    bool ClearChildren(AutomationObject& root);
    bool AskContinue(std::int32_t textNumber);

    Ports ports_;
};
