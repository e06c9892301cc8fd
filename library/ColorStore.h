#pragma once

#include "common/ColorRecord.h"
#include "library/CompactText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

// Names a color for as long as it is in the table, whatever is added or removed beside it; later
// colors have greater ones.  0: none.
using ColorId = std::uint32_t;

// A color as the table keeps it.  Keys are the key of the group, "E" and a number, so the number
// is enough; the second name is nearly always the name.
struct StoredColor {
    // What few colors have.
    struct Seldom {
        std::optional<std::string> altName;
        std::optional<std::string> otherKey;
    };

    StoredColor() = default;
    StoredColor(StoredColor&&) noexcept = default;
    StoredColor& operator=(StoredColor&&) noexcept = default;
    StoredColor(const StoredColor& other)
        : seldom(other.seldom ? std::make_unique<Seldom>(*other.seldom) : nullptr),
          group(other.group), number(other.number), values(other.values), isNew(other.isNew),
          name(other.name) {}
    StoredColor& operator=(const StoredColor&) = delete;
    ~StoredColor() = default;

    static constexpr std::uint32_t kNoGroup = 0xFFFFFFFF;

    std::unique_ptr<Seldom> seldom;
    std::uint32_t group = kNoGroup; // number of its group
    std::uint32_t number = 0;
    ColorValueArray values{};
    bool isNew = false;
    CompactText name;

    [[nodiscard]] std::string_view AltName() const noexcept {
        return seldom && seldom->altName ? std::string_view(*seldom->altName) : name.View();
    }
    // Null: the key is made of group and number.
    [[nodiscard]] const std::string* OtherKey() const noexcept {
        return seldom && seldom->otherKey ? &*seldom->otherKey : nullptr;
    }

    void SetAltName(std::string_view text) {
        if (text != name.View())
            SeldomTexts().altName = text;
        else if (seldom)
            seldom->altName.reset();
    }
    void SetOtherKey(std::string text) { SeldomTexts().otherKey = std::move(text); }

private:
    Seldom& SeldomTexts() {
        if (!seldom)
            seldom = std::make_unique<Seldom>();
        return *seldom;
    }
};

// Keeps colors in blocks, so that no room is kept in advance; a block goes when its last color has
// gone.  A copy shares the blocks and costs next to nothing: a block that changes afterwards is
// copied then.  Another thread may read a copy; to make and to destroy it is for the thread that
// changes the colors.
class ColorStore {
public:
    void Clear();

    // A new color, for the caller to fill.
    struct Added {
        ColorId id = 0;
        StoredColor& color;
    };
    [[nodiscard]] Added Add();
    void Remove(ColorId id);                       // of a color that is there
    void PutBack(ColorId id, StoredColor&& color); // that was removed, under its id

    // Null: it is not there.
    [[nodiscard]] const StoredColor* Find(ColorId id) const noexcept;

    // The color must be there.  One that can be changed does not move until the next copy is made.
    [[nodiscard]] const StoredColor& At(ColorId id) const noexcept {
        return blocks_[BlockOf(id)]->colors[id % kBlockSize];
    }
    [[nodiscard]] StoredColor& At(ColorId id) { return OwnBlockOf(id).colors[id % kBlockSize]; }

private:
    static constexpr ColorId kBlockSize = 256;
    struct Block {
        std::array<StoredColor, kBlockSize> colors;
        ColorId count = 0; // that are there
    };

    [[nodiscard]] std::size_t BlockOf(ColorId id) const noexcept { return id / kBlockSize - gone_; }

    [[nodiscard]] StoredColor& Place(ColorId id);
    [[nodiscard]] Block& OwnBlockOf(ColorId id); // shared with no copy from here on

    std::deque<std::shared_ptr<Block>> blocks_; // null: all of its colors have gone
    ColorId next_ = 1;
    ColorId gone_ = 0; // blocks that are not even remembered
};
