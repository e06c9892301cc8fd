#pragma once

#include "library/LibraryView.h"

// Says what the user sees of the libraries.
class ViewedLibraries {
public:
    virtual ~ViewedLibraries() = default;
    [[nodiscard]] virtual LibraryView View() const = 0;
};
