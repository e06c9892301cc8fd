#include "library/ColorStore.h"

#include <utility>

void ColorStore::Clear() {
    blocks_.clear();
    next_ = 1;
    gone_ = 0;
}

ColorId ColorStore::Add(StoredColor&& color) {
    const ColorId id = next_++;
    if (BlockOf(id) == blocks_.size())
        blocks_.push_back(nullptr);
    Place(id, std::move(color));
    return id;
}

void ColorStore::Place(ColorId id, StoredColor&& color) {
    Block& block = OwnBlockOf(id);
    block.colors[id % kBlockSize] = std::move(color);
    ++block.count;
}

ColorStore::Block& ColorStore::OwnBlockOf(ColorId id) {
    std::shared_ptr<Block>& block = blocks_[BlockOf(id)];
    if (block == nullptr)
        block = std::make_shared<Block>();
    else if (block.use_count() > 1)
        block = std::make_shared<Block>(*block);
    return *block;
}

void ColorStore::PutBack(ColorId id, StoredColor&& color) {
    for (; gone_ > id / kBlockSize; --gone_)
        blocks_.push_front(nullptr);
    Place(id, std::move(color));
}

void ColorStore::Remove(ColorId id) {
    Block& block = OwnBlockOf(id);
    block.colors[id % kBlockSize] = {};
    if (--block.count == 0)
        blocks_[BlockOf(id)].reset();
    // All but the block that the next color may come into.
    for (; blocks_.size() > 1 && blocks_.front() == nullptr; ++gone_)
        blocks_.pop_front();
}
