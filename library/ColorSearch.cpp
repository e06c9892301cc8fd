#include "library/ColorSearch.h"

bool ColorSearch::Advance(std::size_t records) {
    const auto startAnew = [this] {
        colorHits_.clear();
        nameHits_.clear();
    };
    return pass_.Advance(records, startAnew, [this](ColorId id, const StoredColor& color) {
        if (match_.HasColor(color.values))
            colorHits_.push_back(id);
        else if (match_.HasWords(color.name.View()))
            nameHits_.push_back(id);
    });
}
