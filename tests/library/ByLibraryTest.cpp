// Rules: Undo and redo
// What is known of a library goes with the library, and not before it can no longer come back.

#include "library/ByLibrary.h"
#include "library/ColorLibrary.h"

#include <gtest/gtest.h>
#include <string>

namespace {

class ByLibraryTest : public testing::Test {
protected:
    const LibraryNode& Open(const std::string& key) {
        library.Tree().AddMainNode(key, "Lib");
        return library.Tree().At(key);
    }
    void CloseInAStep(const std::string& key) {
        library.History().BeginStep({});
        library.Tree().Remove(key);
        library.History().EndStep(1, {});
    }

    ColorLibrary library;
    ByLibrary<std::string> known;
};

TEST_F(ByLibraryTest, OpenLibraryIsKnownUntilItIsForgotten) {
    const LibraryId id = Open("0D").id;
    known.Put(library.Tree().At("0D"), "first");
    known.Put(library.Tree().At("0D"), "second");
    ASSERT_NE(known.Find(id), nullptr);
    EXPECT_EQ(*known.Find(id), "second");
    known.Erase(id);
    EXPECT_EQ(known.Find(id), nullptr);
}

TEST_F(ByLibraryTest, ClosedLibraryThatCanComeBackIsKnown) {
    const LibraryId id = Open("0D").id;
    known.Put(library.Tree().At("0D"), "it");
    CloseInAStep("0D");
    known.Put(Open("1D"), "another one");
    EXPECT_NE(known.Find(id), nullptr);
    static_cast<void>(library.History().Undo());
    EXPECT_EQ(library.Tree().At("0D").id, id);
    EXPECT_NE(known.Find(id), nullptr);
}

TEST_F(ByLibraryTest, LibraryThatIsGoneForGoodIsForgotten) {
    const LibraryId id = Open("0D").id;
    known.Put(library.Tree().At("0D"), "it");
    CloseInAStep("0D");
    library.History().Clear();
    known.Put(Open("1D"), "another one");
    EXPECT_EQ(known.Find(id), nullptr);
    EXPECT_EQ(known.Count(), 1U);
}

} // namespace
