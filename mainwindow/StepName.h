#pragma once

#include "library/LibraryHistory.h"

#include <cstdint>

// What a step is called: by the command that made it, or by a text of its own.
struct StepName {
    int command = 0;             // IDM_ number; 0: none
    std::int32_t textNumber = 0; // InfoTextNumber

    // As the history keeps it.
    [[nodiscard]] constexpr StepLabel Label() const noexcept {
        return command != 0 ? command : -textNumber;
    }
    [[nodiscard]] static constexpr StepName Of(StepLabel label) noexcept {
        return label > 0 ? StepName{.command = label} : StepName{.textNumber = -label};
    }
};
