#include "tests/faults/SecondProcess.h"

#include <gtest/gtest.h>

int main(int count, char** arguments) {
    if (const auto exitCode = RunAsSecondProcess(count, arguments))
        return *exitCode;
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
