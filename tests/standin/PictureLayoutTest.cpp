// Rules: Stand-in for SolidWorks
#include "standin/model/PictureLayout.h"

#include <gtest/gtest.h>

namespace {

constexpr PictureMetrics kMetrics{80, 50, 8, 24};
constexpr int kWidth = 800;
constexpr int kHeight = 600;

PictureLayout LayOut(const StandInModel& model, int width = kWidth, int height = kHeight) {
    return LayOutPicture(model.ActiveDocument(), kMetrics, width, height);
}

std::vector<PictureRect> RectsOf(const PictureLayout& layout) {
    std::vector<PictureRect> rects;
    for (const PictureCard& card : layout.cards)
        for (const PictureTile& tile : card.tiles)
            rects.push_back(tile.bounds);
    return rects;
}

TEST(PictureLayout, EveryFeatureIsACardWithItsFaces) {
    const PictureLayout layout = LayOut(StandInModel());
    ASSERT_EQ(layout.cards.size(), 6U);
    EXPECT_EQ(layout.cards[0].title, "Base");
    EXPECT_EQ(layout.cards[0].tiles.size(), 6U);
    EXPECT_EQ(layout.cards[5].tiles.size(), 2U);
    EXPECT_EQ(layout.hiddenCards, 0U);
}

TEST(PictureLayout, EveryComponentIsACardAlsoInsideASubAssembly) {
    const PictureLayout layout = LayOut(StandInModel("assembly"), 1200, 900);
    ASSERT_EQ(layout.cards.size(), 9U);
    EXPECT_EQ(layout.cards[6].title, "Latch-1 / Lever-1");
    EXPECT_TRUE(layout.cards[8].tiles.empty());
}

TEST(PictureLayout, TilesStandInsideTheAreaAndDoNotOverlap) {
    const std::vector<PictureRect> rects = RectsOf(LayOut(StandInModel()));
    for (std::size_t i = 0; i < rects.size(); ++i) {
        EXPECT_LE(rects[i].left + rects[i].width, kWidth);
        EXPECT_LE(rects[i].top + rects[i].height, kHeight);
        for (std::size_t j = i + 1; j < rects.size(); ++j)
            EXPECT_TRUE(rects[i].left + rects[i].width <= rects[j].left ||
                        rects[j].left + rects[j].width <= rects[i].left ||
                        rects[i].top + rects[i].height <= rects[j].top ||
                        rects[j].top + rects[j].height <= rects[i].top);
    }
}

TEST(PictureLayout, TheMiddleOfEveryTileHitsItsFace) {
    const PictureLayout layout = LayOut(StandInModel());
    for (const PictureCard& card : layout.cards)
        for (const PictureTile& tile : card.tiles)
            EXPECT_EQ(HitPicture(layout, tile.bounds.left + tile.bounds.width / 2,
                                 tile.bounds.top + tile.bounds.height / 2),
                      tile.item);
}

TEST(PictureLayout, AHeaderStandsForItsFeatureAndTheRestForNothing) {
    const PictureLayout layout = LayOut(StandInModel());
    const PictureRect* header = FindInPicture(layout, layout.cards[2].header);
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(HitPicture(layout, header->left + 1, header->top + 1), layout.cards[2].header);
    EXPECT_EQ(HitPicture(layout, 0, 0).entity, nullptr);
}

TEST(PictureLayout, AnEdgeHasNoPlace) {
    StandInModel model;
    EXPECT_EQ(FindInPicture(LayOut(model), {model.Part().Edges().front(), nullptr}), nullptr);
}

TEST(PictureLayout, FacesWithoutFeatureShareACardThatStandsForNothing) {
    const PictureLayout layout = LayOut(StandInModel("features=0,faces=5"));
    ASSERT_EQ(layout.cards.size(), 1U);
    EXPECT_EQ(layout.cards[0].header.entity, nullptr);
    EXPECT_EQ(layout.cards[0].tiles.size(), 5U);
}

TEST(FitPicture, TilesAreMadeSmallerOnlyWhenCardsHaveNoRoom) {
    const StandInModel model;
    const DocumentPtr document = model.ActiveDocument();
    const PictureLayout roomy = FitPicture(document, kMetrics, kWidth, kHeight);
    EXPECT_EQ(roomy.cards[0].tiles[0].bounds.width, kMetrics.tileWidth);
    const PictureLayout narrow = FitPicture(document, kMetrics, 600, 270);
    EXPECT_GT(LayOut(model, 600, 270).hiddenCards, 0U);
    EXPECT_EQ(narrow.cards.size(), 6U);
    EXPECT_LT(narrow.cards[0].tiles[0].bounds.width, kMetrics.tileWidth);
}

TEST(PictureLayout, WhatHasNoRoomIsCounted) {
    const PictureLayout faces = LayOut(StandInModel("faces=10000"));
    EXPECT_EQ(faces.cards[0].tiles.size(), 14U);
    EXPECT_EQ(faces.cards[0].hiddenTiles, 1653U);
    const PictureLayout components = LayOut(StandInModel("components=10000"));
    EXPECT_EQ(components.cards.size() + components.hiddenCards, 10000U);
}

} // namespace
