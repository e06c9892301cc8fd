#include "library/SavedStates.h"

#include <algorithm>

void SavedStates::Saved(const std::string& mainKey) {
    saved_.Put(library_.Tree().At(mainKey), StateOf(mainKey));
}

void SavedStates::Forget(const std::string& mainKey) {
    saved_.Erase(library_.Tree().At(mainKey).id);
}

LibraryState SavedStates::StateOf(const std::string& mainKey) const {
    const LibraryNode& library = library_.Tree().At(mainKey);
    LibraryState state{.nodes = library.revision};
    for (const std::string& group : library.children) {
        state.nodes = std::max(state.nodes, library_.Tree().At(group).revision);
        state.colors = std::max(state.colors, library_.Colors().RevisionOfGroup(group));
    }
    return state;
}

bool SavedStates::IsAsSaved(const std::string& mainKey) const {
    const LibraryState* saved = saved_.Find(library_.Tree().At(mainKey).id);
    return saved != nullptr && *saved == StateOf(mainKey);
}
