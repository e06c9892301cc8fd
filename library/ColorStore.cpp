#include "library/ColorStore.h"

#include <utility>

void ColorStore::Clear() {
    blocks_.clear();
    next_ = 1;
    gone_ = 0;
}

const StoredColor* ColorStore::Find(ColorId id) const noexcept {
    const std::size_t block = BlockOf(id);
    if (block >= blocks_.size() || blocks_[block] == nullptr)
        return nullptr;
    const StoredColor& color = blocks_[block]->colors[id % kBlockSize];
    return color.group == StoredColor::kNoGroup ? nullptr : &color;
}

ColorStore::Added ColorStore::Add() {
    const ColorId id = next_++;
    if (BlockOf(id) == blocks_.size())
        blocks_.push_back(nullptr);
    return {id, Place(id)};
}

StoredColor& ColorStore::Place(ColorId id) {
    Block& block = OwnBlockOf(id);
    ++block.count;
    return block.colors[id % kBlockSize];
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
    Place(id) = std::move(color);
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
