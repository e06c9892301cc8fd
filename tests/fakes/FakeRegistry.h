#pragma once

#include "common/ports/RegistryAccess.h"

#include <map>
#include <string>
#include <vector>

// A registry in memory: values by "key path|value name" of the current user, or "HKLM:..." of the
// machine.
class FakeRegistry : public RegistryAccess {
public:
    std::optional<RegistryValue> Query(std::uint32_t root, const std::string& keyPath,
                                       const std::string& valueName,
                                       std::uint32_t rights) override {
        queries.push_back(Path(root, keyPath, valueName));
        rightsAsked.push_back(rights);
        const auto found = values.find(queries.back());
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    bool Set(std::uint32_t root, const std::string& keyPath, const std::string& valueName,
             const RegistryValue& value, std::uint32_t rights) override {
        rightsAsked.push_back(rights);
        if (isReadOnly)
            return false;
        written.push_back(Path(root, keyPath, valueName));
        values[written.back()] = value;
        return true;
    }

    void SetText(const std::string& path, const std::string& text) {
        values[path] = {RegistryType::String, text + '\0'};
    }
    [[nodiscard]] std::string Text(const std::string& path) const {
        const auto found = values.find(path);
        return found == values.end()
                   ? "(none)"
                   : found->second.bytes.substr(0, found->second.bytes.find('\0'));
    }

    std::map<std::string, RegistryValue> values;
    std::vector<std::string> queries;
    std::vector<std::string> written;
    std::vector<std::uint32_t> rightsAsked;
    bool isReadOnly = false;

private:
    static std::string Path(std::uint32_t root, const std::string& keyPath,
                            const std::string& valueName) {
        return (root == RegistryRoot::LocalMachine ? "HKLM:" : "") + keyPath + "|" + valueName;
    }
};
