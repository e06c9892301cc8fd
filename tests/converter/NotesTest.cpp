// Rules: Console program
#include "converter/Notes.h"

#include <gtest/gtest.h>

namespace {

TEST(NotesTest, FaultsAreToldWithTheirNumberAndTheFirstPlace) {
    PaletteFaults faults;
    faults.Add(PaletteFault::Unreadable, 7);
    faults.Add(PaletteFault::Unreadable, 9);
    faults.Add(PaletteFault::Limit, 12);
    EXPECT_EQ(NotesOf(faults, PaletteFormat::Gimp),
              (Notes{"not read as a color and left out: 2 (first: line 7)",
                     "beyond the limits of size, left out: 1 (first: line 12)"}));
    EXPECT_TRUE(NotesOf(PaletteFaults(), PaletteFormat::Gimp).empty());
}

TEST(NotesTest, PlacesAreCalledAsTheyAreCountedInTheFormat) {
    PaletteFaults faults;
    faults.Add(PaletteFault::Count, 1);
    const auto placeIn = [&](PaletteFormat format) {
        const std::string note = NotesOf(faults, format).at(0);
        return note.substr(note.rfind(' ', note.rfind(' ') - 1) + 1);
    };
    EXPECT_EQ(placeIn(PaletteFormat::Table), "line 1)");
    EXPECT_EQ(placeIn(PaletteFormat::SwatchExchange), "block 1)");
    EXPECT_EQ(placeIn(PaletteFormat::AdobeColor), "color 1)");
}

TEST(NotesTest, EachKindOfFaultHasWordsOfItsOwn) {
    PaletteFaults faults;
    for (std::size_t fault = 0; fault < kPaletteFaultCount; ++fault)
        faults.Add(static_cast<PaletteFault>(fault), 1);
    Notes notes = NotesOf(faults, PaletteFormat::Table);
    ASSERT_EQ(notes.size(), kPaletteFaultCount);
    std::ranges::sort(notes);
    EXPECT_EQ(std::ranges::adjacent_find(notes), notes.end());
}

TEST(NotesTest, LossesOfAPaletteAreToldWithTheirNumber) {
    EXPECT_EQ(
        NotesOf(PaletteLosses{1, 2, 3, 4, 5}),
        (Notes{"name of the palette, not kept or changed: 1",
               "groups that are not kept as groups of their own: 2", "names cut or changed: 3",
               "colors without their material values: 4", "colors left out: 5"}));
    EXPECT_TRUE(NotesOf(PaletteLosses()).empty());
}

TEST(NotesTest, LossesOfALibraryAreToldWithTheCharacters) {
    EXPECT_EQ(
        NotesOf(SaveLosses{"Жя", "a=b", {"c=d", "e=f"}}),
        (Notes{"names with \"=\", a division sign or a line break, changed: 3",
               "characters that the code page does not have, \"?\" stands for them: 2 (Жя)"}));
    EXPECT_TRUE(NotesOf(SaveLosses()).empty());
}

TEST(NotesTest, ManyCharactersAreNotAllShown) {
    std::string many;
    for (int count = 0; count < 100; ++count)
        many += "Ж";
    const std::string note = NotesOf(SaveLosses{many, "", {}}).at(0);
    EXPECT_NE(note.find(": 100 ("), std::string::npos);
    EXPECT_LT(note.size(), 170U);
}

} // namespace
