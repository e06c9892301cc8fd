#pragma once

#include "standin/model/CallGate.h"
#include "tests/fakes/RetryingService.h"

#include <string>

// Makes the next call of a member go wrong, wherever it stands among the calls.  fault: as
// ParseFault reads it, without the number of the call.
inline void FailAt(const std::string& member, const std::string& fault, CallHooks& hooks,
                   CallGate& gate) {
    gate.ClearFaults();
    hooks.onCall = [=, &gate, before = gate.Log().Total(),
                    isPending = true](const std::string& called) mutable {
        if (!isPending || called != member)
            return;
        isPending = false;
        const std::size_t call = gate.Log().Total() - before + 1;
        gate.AddFault(ParseFault(std::to_string(call) + ":" + fault));
    };
}
