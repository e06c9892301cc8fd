#pragma once

#include "common/BusyRetry.h"
#include "common/ports/AutomationObject.h"
#include "platform/ComApartment.h"
#include "platform/Win32WaitingClock.h"

#include <string>
#include <vector>

// Reads the stand-in's model through its automation object, as any client does.
class StandInReader {
public:
    // face: from 1, in the order in which the part's body gives its faces.
    [[nodiscard]] std::vector<double> FaceValues(int face);
    // The same face becomes what is selected.
    void SelectFace(int face);

    // The values of a direct component of the active assembly; empty when it has none of its own.
    [[nodiscard]] std::vector<double> ComponentValues(const std::string& name);

    // The values of what is selected first.
    [[nodiscard]] std::vector<double> SelectedValues();

private:
    [[nodiscard]] AutomationObjectPtr ActiveDocument();
    [[nodiscard]] AutomationObjectPtr FaceAt(int face);

    ComApartment apartment_;
    Win32WaitingClock clock_;
    BusyRetry retry_{clock_};
};
