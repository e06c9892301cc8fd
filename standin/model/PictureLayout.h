#pragma once

#include "standin/model/StandInModel.h"

#include <string>
#include <vector>

// A rectangle of the picture, in pixels.
struct PictureRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] bool Contains(int x, int y) const noexcept {
        return x >= left && x < left + width && y >= top && y < top + height;
    }
    bool operator==(const PictureRect&) const = default;
};

// One face of a card.
struct PictureTile {
    SelectedItem item;
    PictureRect bounds;
};

// A feature of a part or a component of an assembly, with its faces.  The header stands for the
// feature or component itself; it stands for nothing when the faces belong to none.
struct PictureCard {
    SelectedItem header;
    std::string title;
    PictureRect bounds;
    PictureRect headerBounds;
    std::vector<PictureTile> tiles;
    std::size_t hiddenTiles = 0; // faces for which there was no room
};

struct PictureLayout {
    std::vector<PictureCard> cards;
    std::size_t hiddenCards = 0; // for which there was no room
};

// The lengths of a picture, in pixels.
struct PictureMetrics {
    int tileWidth = 0;
    int tileHeight = 0;
    int gap = 0;
    int headerHeight = 0;
};

// Lays the cards of the document out in rows on an area of this size.
[[nodiscard]] PictureLayout LayOutPicture(const DocumentPtr& document,
                                          const PictureMetrics& metrics, int width, int height);

// The same with smaller tiles, as far as they can still be read, when not all cards have room.
[[nodiscard]] PictureLayout FitPicture(const DocumentPtr& document, const PictureMetrics& metrics,
                                       int width, int height);

// What is at a point: a face, else the header of its card; an item without entity is the
// background.
[[nodiscard]] SelectedItem HitPicture(const PictureLayout& layout, int x, int y);

// Where the item is seen; null when it has no place in the picture.
[[nodiscard]] const PictureRect* FindInPicture(const PictureLayout& layout,
                                               const SelectedItem& item);
