#include "library/ColorMatch.h"

#include "common/CaseFolding.h"

#include <algorithm>

bool ColorMatch::HasColor(const ColorValueArray& values) const noexcept {
    return query_.color && values[0] == query_.color->red && values[1] == query_.color->green &&
           values[2] == query_.color->blue;
}

bool ColorMatch::HasWords(std::string_view name) {
    if (query_.words.empty())
        return false;
    FoldCaseInto(folded_, name);
    return std::ranges::all_of(query_.words, [this](const std::string& word) {
        return folded_.find(word) != std::string::npos;
    });
}
