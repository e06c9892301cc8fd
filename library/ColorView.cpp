#include "library/ColorView.h"

#include "library/LibraryKeys.h"

std::string ColorView::Key() const {
    if (const std::string* const otherKey = color.OtherKey())
        return *otherKey;
    return LibraryKeys::OfColor(groupKey, color.number);
}

bool ColorView::KeyBeginsWith(std::string_view start) const {
    if (color.OtherKey() == nullptr && start.size() <= groupKey.size())
        return std::string_view(groupKey).starts_with(start);
    return Key().starts_with(start);
}
