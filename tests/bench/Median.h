#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

// The value in the middle; of an even number the upper one.  values: at least one.
[[nodiscard]] inline double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}
