#pragma once

#include "library/LibraryNode.h"

#include <cstddef>
#include <map>
#include <memory>
#include <utility>

// What somebody knows of libraries, of each for as long as it is open or can come back by undo.
template <typename Value>
class ByLibrary {
public:
    void Put(const LibraryNode& library, Value value) {
        std::erase_if(entries_, [](const auto& entry) { return entry.second.life.expired(); });
        entries_.insert_or_assign(library.id, Entry{library.life, std::move(value)});
    }
    void Erase(LibraryId library) { entries_.erase(library); }

    // Null: nothing is known.  Until the next change.
    [[nodiscard]] const Value* Find(LibraryId library) const {
        const auto entry = entries_.find(library);
        return entry != entries_.end() ? &entry->second.value : nullptr;
    }

    [[nodiscard]] std::size_t Count() const noexcept { return entries_.size(); }

private:
    struct Entry {
        std::weak_ptr<const void> life;
        Value value;
    };
    std::map<LibraryId, Entry> entries_;
};
