#pragma once

#include "common/ports/AnsiCodePage.h"
#include "library/ColorLibrary.h"
#include "library/ColorSnapshot.h"
#include "library/WorkProgress.h"

#include <memory>
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
    int colorCount = 0;                            // in its groups
    std::shared_ptr<const ColorSnapshot> colors{}; // of all open libraries

    // snapshot: of this moment.
    [[nodiscard]] static LibraryContent Of(const ColorLibrary& library, const std::string& mainKey,
                                           std::shared_ptr<const ColorSnapshot> snapshot);

    struct Composed {
        AnsiCodePage::Encoded encoded; // the bytes of a file
        bool isRespelled = false;      // not all names are as they are
    };
    [[nodiscard]] Composed Compose(const AnsiCodePage& codePage, NameSpelling spelling,
                                   WorkProgress& progress) const;
};
