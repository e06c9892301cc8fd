#pragma once

#include "standin/model/Fault.h"
#include "standin/model/Scenario.h"

#include <string>
#include <vector>

// What the stand-in was told at its start.
struct CommandLine {
    Scenario scenario;
    std::vector<Fault> faults;
    std::string logFile;   // empty: none
    std::string readyFile; // empty: none
    bool hidden = false;
};

// --scenario WORDS, --assembly, --fault FAULT, --log FILE, --ready-file FILE, --hidden; the first
// three may be given several times.  Throws RuntimeError InvalidPropertyValue for anything else.
[[nodiscard]] CommandLine ParseCommandLine(const std::vector<std::string>& arguments);

class StandInModel;

// Carries out one order of a test while the stand-in runs: "fault FAULT", "clear-faults",
// "document part|assembly|drawing|none".  Throws RuntimeError InvalidPropertyValue for any other.
void RunOrder(const std::string& order, StandInModel& model);
