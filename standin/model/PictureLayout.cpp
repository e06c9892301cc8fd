#include "standin/model/PictureLayout.h"

#include <algorithm>

namespace {

// A card shows no more faces than this: two rows of seven.
constexpr std::size_t kLargestTileCount = 14;
constexpr std::size_t kTilesPerRow = 7;
// No window has room for more cards; a document may have many thousands.
constexpr std::size_t kLargestCardCount = 400;

using ComponentPtr = std::shared_ptr<Component>;

class Cards {
public:
    void AddPart(const PartDocument& part) {
        for (const auto& feature : part.Features())
            Add({feature, nullptr}, feature->Name());
        for (const auto& face : part.Faces())
            AddFace(CardOf(*face), {face, nullptr});
    }

    void AddChildren(const Component& parent, const std::string& path) {
        for (const ComponentPtr& child : parent.Children()) {
            const std::string title = path + child->Name();
            Add({child, child}, title);
            if (const DocumentPtr model = child->Model())
                AddFacesOf(*model, child);
            AddChildren(*child, title + " / ");
        }
    }

    PictureLayout Take() { return std::move(layout_); }

private:
    PictureCard* Add(const SelectedItem& header, const std::string& title) {
        if (layout_.cards.size() == kLargestCardCount) {
            ++layout_.hiddenCards;
            return nullptr;
        }
        layout_.cards.push_back({header, title, {}, {}, {}, 0});
        return &layout_.cards.back();
    }

    // The card of the feature that made the face; of the faces without one when there is none.
    PictureCard* CardOf(const Face& face) {
        const EntityPtr feature = face.OwnFeature();
        const auto found =
            std::find_if(layout_.cards.begin(), layout_.cards.end(),
                         [&](const PictureCard& card) { return card.header.entity == feature; });
        if (found != layout_.cards.end())
            return &*found;
        return feature ? nullptr : Add({}, "Faces");
    }

    void AddFacesOf(const Document& model, const ComponentPtr& component) {
        PictureCard& card = layout_.cards.back();
        if (model.Type() != DocumentType::Part || card.header.entity != component)
            return;
        for (const auto& face : static_cast<const PartDocument&>(model).Faces())
            AddFace(&card, {face, component});
    }

    static void AddFace(PictureCard* card, const SelectedItem& item) {
        if (!card)
            return;
        if (card->tiles.size() < kLargestTileCount)
            card->tiles.push_back({item, {}});
        else
            ++card->hiddenTiles;
    }

    PictureLayout layout_;
};

PictureLayout CardsOf(const DocumentPtr& document) {
    Cards cards;
    if (document && document->Type() == DocumentType::Part)
        cards.AddPart(static_cast<const PartDocument&>(*document));
    if (document && document->Type() == DocumentType::Assembly)
        if (const auto& root = static_cast<const AssemblyDocument&>(*document).Root())
            cards.AddChildren(*root, {});
    return cards.Take();
}

// Few faces stand in one row, more in two.
int ColumnsOf(const PictureCard& card) {
    const std::size_t count = std::max<std::size_t>(card.tiles.size(), 1);
    const std::size_t columns = count <= 4 ? count : (count + 1) / 2;
    return static_cast<int>(std::min(columns, kTilesPerRow));
}

void SizeCard(PictureCard& card, const PictureMetrics& metrics) {
    const int columns = ColumnsOf(card);
    const int rows = (static_cast<int>(card.tiles.size()) + columns - 1) / columns;
    const int widest = std::max(columns, 2); // room for the title
    card.bounds.width = widest * (metrics.tileWidth + metrics.gap) + metrics.gap;
    card.bounds.height = metrics.headerHeight + rows * (metrics.tileHeight + metrics.gap) +
                         (rows > 0 ? metrics.gap : 0);
}

void PlaceTiles(PictureCard& card, const PictureMetrics& metrics) {
    const int columns = ColumnsOf(card);
    card.headerBounds = {card.bounds.left, card.bounds.top, card.bounds.width,
                         metrics.headerHeight};
    int index = 0;
    for (PictureTile& tile : card.tiles) {
        tile.bounds = {card.bounds.left + metrics.gap +
                           index % columns * (metrics.tileWidth + metrics.gap),
                       card.bounds.top + metrics.headerHeight + metrics.gap +
                           index / columns * (metrics.tileHeight + metrics.gap),
                       metrics.tileWidth, metrics.tileHeight};
        ++index;
    }
}

// Puts card after card into rows.
class Flow {
public:
    Flow(const PictureMetrics& metrics, int width)
        : metrics_(metrics), width_(width), left_(metrics.gap), top_(metrics.gap) {}

    void Place(PictureCard& card) {
        if (left_ > metrics_.gap && left_ + card.bounds.width + metrics_.gap > width_) {
            left_ = metrics_.gap;
            top_ += rowHeight_ + metrics_.gap;
            rowHeight_ = 0;
        }
        card.bounds.left = left_;
        card.bounds.top = top_;
        left_ += card.bounds.width + metrics_.gap;
        rowHeight_ = std::max(rowHeight_, card.bounds.height);
    }

private:
    const PictureMetrics& metrics_;
    int width_;
    int left_;
    int top_;
    int rowHeight_ = 0;
};

PictureLayout PlaceCards(PictureLayout layout, const PictureMetrics& metrics, int width,
                         int height) {
    Flow flow(metrics, width);
    for (PictureCard& card : layout.cards) {
        SizeCard(card, metrics);
        flow.Place(card);
        PlaceTiles(card, metrics);
    }
    const auto outside =
        std::find_if(layout.cards.begin(), layout.cards.end(), [&](const PictureCard& card) {
            return card.bounds.top + card.bounds.height + metrics.gap > height;
        });
    layout.hiddenCards += static_cast<std::size_t>(layout.cards.end() - outside);
    layout.cards.erase(outside, layout.cards.end());
    return layout;
}

PictureMetrics Scaled(const PictureMetrics& metrics, int percent) {
    return {metrics.tileWidth * percent / 100, metrics.tileHeight * percent / 100,
            metrics.gap * percent / 100,
            // The title keeps its size.
            std::max(metrics.headerHeight * percent / 100, metrics.headerHeight * 3 / 4)};
}

} // namespace

PictureLayout LayOutPicture(const DocumentPtr& document, const PictureMetrics& metrics, int width,
                            int height) {
    return PlaceCards(CardsOf(document), metrics, width, height);
}

PictureLayout FitPicture(const DocumentPtr& document, const PictureMetrics& metrics, int width,
                         int height) {
    const PictureLayout cards = CardsOf(document);
    PictureLayout layout;
    for (const int percent : {100, 90, 80, 70, 60}) {
        layout = PlaceCards(cards, Scaled(metrics, percent), width, height);
        if (layout.hiddenCards == 0)
            break;
    }
    return layout;
}

SelectedItem HitPicture(const PictureLayout& layout, int x, int y) {
    for (const PictureCard& card : layout.cards) {
        if (card.headerBounds.Contains(x, y))
            return card.header;
        for (const PictureTile& tile : card.tiles)
            if (tile.bounds.Contains(x, y))
                return tile.item;
    }
    return {};
}

const PictureRect* FindInPicture(const PictureLayout& layout, const SelectedItem& item) {
    for (const PictureCard& card : layout.cards) {
        if (card.header == item)
            return &card.headerBounds;
        for (const PictureTile& tile : card.tiles)
            if (tile.item == item)
                return &tile.bounds;
    }
    return nullptr;
}
