#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

// A section of a private-profile file, read in one go.  It answers only where every reading of its
// lines gives the same: the platform has rules of its own for quotes, blanks and odd lines.
class ProfileSection {
public:
    // lines: as the platform gives a section, "key=value" each, with a NUL behind each.  names: of
    // all sections of the file, in the same form; they tell whether the section is there once only.
    ProfileSection(std::string_view section, std::string_view lines, std::string_view names);

    // The value of a key, or the fallback when there is none; nothing: ask the platform.  Letters
    // of A to Z count in either case.
    [[nodiscard]] std::optional<std::string> Find(std::string_view key,
                                                  std::string_view fallback) const;

private:
    struct Entry {
        std::string value;
        bool isPlain = false;
    };
    void Add(std::string_view line);

    std::map<std::string, Entry, std::less<>>
        entries_;    // by the key in lower case; the first counts
    bool isOnlyOne_; // section of its name
};
