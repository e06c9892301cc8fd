#pragma once

#include "common/ports/AnsiCodePage.h"
#include "library/ColorLibrary.h"
#include "library/ColorSnapshot.h"
#include "library/WorkProgress.h"

#include <string>
#include <vector>

// How names are written that would not be read back as they are.
enum class NameSpelling {
    AsItIs,
    Readable // with another character in the place of the one that ends the name
};

// An open library as it was at one moment: all that its file is made of.  As with a ColorSnapshot
// another thread may read it.
struct LibraryContent {
    struct Group {
        std::string name;
        std::string key;
    };

    std::string name{};
    std::string key{};
    std::vector<Group> groups{};
    int colorCount = 0;     // in its groups
    ColorSnapshot colors{}; // of all open libraries

    [[nodiscard]] static LibraryContent Of(const ColorLibrary& library, const std::string& mainKey);

    // The bytes of a file.
    [[nodiscard]] AnsiCodePage::Encoded Compose(const AnsiCodePage& codePage, NameSpelling spelling,
                                                WorkProgress& progress) const;
};
