#pragma once

#include "common/ColorRecord.h"

#include <optional>
#include <string>

// What the colour library asks of the window that shows it.
class LibraryHost {
public:
    virtual ~LibraryHost() = default;

    // The nine values that the editor shows.  Throws RuntimeError when a text does not convert.
    [[nodiscard]] virtual ColorValueArray ActiveColorValues() = 0;

    // Refills the list with a group's colours (of the tree's selection when no group is named) and
    // selects a colour when one is named.
    virtual void ShowColorNodes(const std::optional<std::string>& groupKey,
                                const std::optional<std::string>& selectKey) = 0;

    // Key of the list's selected colour; empty when none is selected.
    [[nodiscard]] virtual std::string SelectedColorKey() = 0;
};
