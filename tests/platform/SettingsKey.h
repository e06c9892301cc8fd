#pragma once

#include <string>
#include <vector>

// The registry key of the program's settings, empty at first.  What the user kept there is put
// aside and comes back at the end.
class SettingsKey {
public:
    SettingsKey();
    SettingsKey(const SettingsKey&) = delete;
    SettingsKey& operator=(const SettingsKey&) = delete;
    ~SettingsKey();

    // subKey: below the key; empty: the key itself.  text: UTF-8.
    void SetText(const std::string& subKey, const std::string& name, const std::string& text) const;
    // A value of a type that no setting has.
    void SetBinary(const std::string& name) const;

    // The names of all values, those of a sub-key as "sub-key|name", sorted.
    [[nodiscard]] std::vector<std::string> Names() const;
};
