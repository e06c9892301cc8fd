#pragma once

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

// A place that the surroundings of the tests prepared, which the variable names; empty: they could
// not, and the test is left out.  Where they must be able to (TNT_ALL_FAULTS), that is a failure:
// nothing is left out silently.
inline std::string PreparedPlace(const char* variable) {
    const char* const place = std::getenv(variable);
    EXPECT_TRUE(place != nullptr || std::getenv("TNT_ALL_FAULTS") == nullptr) << variable;
    return place != nullptr ? place : "";
}
