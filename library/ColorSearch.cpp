#include "library/ColorSearch.h"

#include "common/CaseFolding.h"

#include <algorithm>

bool ColorSearch::HasColor(const ColorValueArray& values) const noexcept {
    return query_.color && values[0] == query_.color->red && values[1] == query_.color->green &&
           values[2] == query_.color->blue;
}

bool ColorSearch::HasWords(std::string_view name) {
    if (query_.words.empty())
        return false;
    FoldCaseInto(folded_, name);
    return std::ranges::all_of(query_.words, [this](const std::string& word) {
        return folded_.find(word) != std::string::npos;
    });
}

bool ColorSearch::Advance(std::size_t records) {
    const auto startAnew = [this] {
        colorHits_.clear();
        nameHits_.clear();
    };
    return pass_.Advance(records, startAnew, [this](ColorId id, const StoredColor& color) {
        if (HasColor(color.values))
            colorHits_.push_back(id);
        else if (HasWords(color.name.View()))
            nameHits_.push_back(id);
    });
}
