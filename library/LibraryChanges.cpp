#include "library/LibraryChanges.h"

#include "library/LibraryKeys.h"

#include <utility>

namespace LibraryChanges {

bool Colors::TakesOneMore(ColorId id, const NodeRef& group) {
    Part& part = parts_.back();
    if (!part.out.empty() || !(part.group == group))
        return false;
    part.ids.push_back(id);
    return true;
}

void Colors::TurnRound(LibraryTree& tree, ColorTable& colors) {
    if (!parts_.front().out.empty()) {
        std::vector<RemovedColors> coming;
        coming.reserve(parts_.size());
        for (auto& [group, ids, out] : parts_) {
            for (const RemovedColor& removed : out)
                ids.push_back(removed.id);
            coming.push_back({tree.KeyOf(group), std::exchange(out, std::vector<RemovedColor>())});
        }
        colors.PutBack(std::move(coming));
        return;
    }
    std::vector<std::vector<ColorId>> going;
    going.reserve(parts_.size());
    for (Part& part : parts_)
        going.push_back(std::exchange(part.ids, std::vector<ColorId>()));
    std::vector<RemovedColors> gone = colors.TakeOut(going);
    for (std::size_t index = 0; index < parts_.size(); ++index)
        parts_[index].out = std::move(gone[index].colors);
}

std::size_t Colors::KeptBytes() const {
    std::size_t bytes = 0;
    for (const Part& part : parts_)
        bytes += part.out.size() * sizeof(RemovedColor);
    return bytes;
}

void Values::TurnRound(LibraryTree&, ColorTable& colors) {
    colors.Exchange(color_, other_);
}

void Node::TurnRound(LibraryTree& tree, ColorTable&) {
    if (!out_) {
        out_ = tree.TakeOut(tree.KeyOf(ref_));
        return;
    }
    const bool isGroup = !ref_.group.empty();
    tree.PutBack(std::move(*out_), isGroup ? tree.KeyOf({ref_.library}) : std::string());
    out_.reset();
}

void Name::TurnRound(LibraryTree& tree, ColorTable&) {
    const std::string key = tree.KeyOf(node_);
    std::string now = tree.At(key).text;
    tree.SetText(key, other_);
    other_ = std::move(now);
}

void File::TurnRound(LibraryTree& tree, ColorTable&) {
    const std::string key = tree.KeyOf(library_);
    if (tree.At(key).file != now_)
        return; // a save has given it another one
    if (other_)
        tree.SetFile(key, *other_);
    else
        tree.SetUnsaved(key);
    std::swap(other_, now_);
}

void LastColor::TurnRound(LibraryTree& tree, ColorTable&) {
    const std::string key = tree.KeyOf(group_);
    std::string now = LibraryKeys::Within(key, tree.At(key).lastColor);
    tree.RememberColor(key, other_.empty() ? std::string() : key + other_);
    other_ = std::move(now);
}

} // namespace LibraryChanges
