#include "library/LibraryChanges.h"

#include "library/LibraryKeys.h"

namespace LibraryChanges {

bool Colors::TakesOneMore(ColorId id, const NodeRef& group) {
    if (!out_.empty() || !(group == group_))
        return false;
    ids_.push_back(id);
    return true;
}

void Colors::TurnRound(LibraryTree& tree, ColorTable& colors) {
    if (out_.empty()) {
        out_ = colors.TakeOut(ids_);
        ids_ = {};
        return;
    }
    ids_.reserve(out_.size());
    for (const RemovedColor& removed : out_)
        ids_.push_back(removed.id);
    colors.PutBack(tree.KeyOf(group_), std::move(out_));
    out_.clear();
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
    if (tree.At(key).file == now_) {
        if (other_)
            tree.SetFile(key, *other_);
        else
            tree.SetUnsaved(key);
    }
    std::swap(other_, now_);
}

void LastColor::TurnRound(LibraryTree& tree, ColorTable&) {
    const std::string key = tree.KeyOf(group_);
    std::string now = LibraryKeys::Within(key, tree.At(key).lastColor);
    tree.RememberColor(key, other_.empty() ? std::string() : key + other_);
    other_ = std::move(now);
}

} // namespace LibraryChanges
