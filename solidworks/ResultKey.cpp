#include "solidworks/ResultKey.h"

#include <algorithm>
#include <array>

namespace {

struct Meaning {
    std::string_view key;
    ResultKind kind;
};

constexpr std::array kMeanings = {
    Meaning{ResultKey::Okay, ResultKind::Okay},
    Meaning{ResultKey::NoSolidWorksFound, ResultKind::NoSolidWorks},
    Meaning{ResultKey::NoActiveDocument, ResultKind::NoActiveDocument},
    Meaning{ResultKey::NoPartOrAssembly, ResultKind::NoPartOrAssembly},
    Meaning{ResultKey::NoRequiredSWAPI, ResultKind::RevisionTooLow},
    Meaning{ResultKey::NoPart, ResultKind::NoPart},
    Meaning{ResultKey::NoAssembly, ResultKind::NoAssembly},
    Meaning{ResultKey::LevelsChanged, ResultKind::LevelsChanged},
    Meaning{ResultKey::ProgressStopped, ResultKind::Stopped},
};

} // namespace

ResultKind KindOfResult(std::string_view resultKey) {
    const auto meaning =
        std::ranges::find_if(kMeanings, [&](const Meaning& row) { return row.key == resultKey; });
    return meaning != kMeanings.end() ? meaning->kind : ResultKind::Other;
}
