// Rules: Foreign palettes
#include "palettes/PaletteContent.h"

#include "palettes/PaletteLimits.h"

#include <gtest/gtest.h>

namespace {

using Met = PaletteFaults::Met;

TEST(PaletteContent, MoreColorsThanTheLimitAreCountedAndLeftOut) {
    PaletteContent content;
    content.palette.entries.resize(PaletteLimits::kMostEntries - 1);
    for (std::size_t place = 7; place < 10; ++place)
        if (content.StartEntry(place) != nullptr)
            content.KeepEntry(place);
    EXPECT_EQ(content.palette.entries.size(), PaletteLimits::kMostEntries);
    EXPECT_EQ(content.faults.Of(PaletteFault::Limit), (Met{2, 8}));
}

TEST(PaletteContent, ColorsOfGroupsBeyondTheLimitHaveNone) {
    PaletteContent content;
    content.palette.groups.resize(PaletteLimits::kMostGroups - 1);
    EXPECT_EQ(content.AddGroup("last", 3), PaletteLimits::kMostGroups - 1);
    EXPECT_EQ(content.AddGroup("too many", 4), kNoGroup);
    EXPECT_EQ(content.palette.groups.size(), PaletteLimits::kMostGroups);
    EXPECT_EQ(content.faults.Of(PaletteFault::Limit), (Met{1, 4}));
}

TEST(PaletteContent, FaultsRememberHowOftenAndWhereFirst) {
    PaletteFaults faults;
    EXPECT_TRUE(faults.IsNothing());
    faults.Add(PaletteFault::Rest, 5);
    faults.Add(PaletteFault::Rest, 3);
    EXPECT_FALSE(faults.IsNothing());
    EXPECT_EQ(faults.Of(PaletteFault::Rest), (Met{2, 5}));
    EXPECT_EQ(faults.Of(PaletteFault::Ends), (Met{0, 0}));
}

} // namespace
