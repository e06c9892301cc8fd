// Rules: Stand-in for SolidWorks
#include "standin/model/Selection.h"

#include "standin/model/StandInModel.h"

#include <gtest/gtest.h>

namespace {

using Items = std::vector<SelectedItem>;

class SelectionTest : public testing::Test {
protected:
    [[nodiscard]] SelectedItem Item(std::size_t face) {
        return {model.Part().FaceAt(face), nullptr};
    }

    StandInModel model;
};

TEST_F(SelectionTest, ChangeIsWhatCameAndWhatWent) {
    const SelectionChange change = ChangeBetween({Item(0), Item(1)}, {Item(2), Item(1), Item(3)});
    EXPECT_EQ(change.added, (Items{Item(2), Item(3)}));
    EXPECT_EQ(change.removed, Items{Item(0)});
}

TEST_F(SelectionTest, AnotherOrderIsNoChange) {
    const SelectionChange change = ChangeBetween({Item(0), Item(1)}, {Item(1), Item(0)});
    EXPECT_TRUE(change.added.empty());
    EXPECT_TRUE(change.removed.empty());
}

TEST_F(SelectionTest, TheSameObjectSeenThroughAnotherComponentIsAnother) {
    const auto component = model.Assembly().Root()->Children().front();
    const SelectedItem seen{model.Part().FaceAt(0), component};
    const SelectionChange change = ChangeBetween({Item(0)}, {seen});
    EXPECT_EQ(change.added, Items{seen});
    EXPECT_EQ(change.removed, Items{Item(0)});
}

} // namespace
