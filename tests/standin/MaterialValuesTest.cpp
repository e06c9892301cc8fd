// Rules: Stand-in for SolidWorks
#include "standin/model/MaterialValues.h"

#include "common/RuntimeError.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

TEST(MaterialValues, AnUnsetColorReadsAsAnEmptyValue) {
    EXPECT_TRUE(ToAutomationValue(std::nullopt).IsEmpty());
}

TEST(MaterialValues, AColorReadsAsAnArrayOfNineDoubles) {
    const MaterialValues values{0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8};
    const AutomationValue read = ToAutomationValue(values);
    EXPECT_EQ(std::get<std::vector<double>>(read.data),
              std::vector<double>(values.begin(), values.end()));
    EXPECT_EQ(ReadMaterialValues(read), values);
}

TEST(MaterialValues, AnArrayOfNineVariantsIsAColorToo) {
    const AutomationArray variants{1, 0, 0.5, 0, 0, 0, 0, 0, "0.25"};
    EXPECT_EQ(ReadMaterialValues(variants), (MaterialValues{1, 0, 0.5, 0, 0, 0, 0, 0, 0.25}));
}

TEST(MaterialValues, NumbersOutsideZeroToOneAreRefused) {
    for (const double wrong : {-0.001, 1.001, 255.0, std::nan("")}) {
        std::vector<double> values(9, 0.5);
        values[4] = wrong;
        EXPECT_THROW((void)ReadMaterialValues(values), RuntimeError) << wrong;
    }
    EXPECT_NO_THROW((void)ReadMaterialValues(std::vector<double>{0, 1, 0, 1, 0, 1, 0, 1, 0}));
}

TEST(MaterialValues, EverythingElseIsATypeMismatch) {
    const std::vector<AutomationValue> wrong{{},
                                             3,
                                             "red",
                                             AutomationObjectPtr(),
                                             std::vector<double>(8),
                                             std::vector<double>(10),
                                             AutomationArray(3, 1)};
    for (const AutomationValue& value : wrong) {
        try {
            (void)ReadMaterialValues(value);
            ADD_FAILURE() << "kind " << value.data.index() << " was accepted";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::TypeMismatch);
        }
    }
}

} // namespace
