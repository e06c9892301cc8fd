#pragma once

#include "common/ColorNumber.h"
#include "standin/model/MaterialValues.h"

#include <cstdint>
#include <vector>

// The plain color of the values, without any light.
[[nodiscard]] RedGreenBlue PlainColor(const MaterialValues& values) noexcept;

// A lit ball of this material on a chequered ground that shows through when it is transparent.
// size * size pixels, row after row from the top, each 0x00RRGGBB; background likewise.
[[nodiscard]] std::vector<std::uint32_t> ShadedBall(const MaterialValues& values, int size,
                                                    std::uint32_t background);
