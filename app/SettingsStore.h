#pragma once

#include "common/Settings.h"
#include "support/settings/modRegistry.h"

#include <optional>
#include <string>
#include <vector>

// Keeps the settings as string values under the program's registry key.
class SettingsStore {
public:
    explicit SettingsStore(const modRegistry& registry) : registry_(registry) {}

    // Replaces each setting that is stored.  A value that does not convert leaves the setting as it
    // is; the names of these values are returned.
    std::vector<std::string> Load(Settings& settings) const;

    // A setting that has never been used is not stored, where it is such a one.
    void Save(const Settings& settings) const;

    // The banner last shown, as text; "1" when nothing is stored.
    [[nodiscard]] std::string LoadLastSponsorShown() const;
    void SaveLastSponsorShown(int index) const;

private:
    // Empty when nothing is stored; nothing at all for bytes, which are no text.
    [[nodiscard]] std::optional<std::string> Read(const std::string& name) const;
    void Write(const std::string& name, const std::string& text) const;

    const modRegistry& registry_;
};
