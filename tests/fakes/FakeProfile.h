#pragma once

#include "common/Numbers.h"
#include "common/ports/PrivateProfile.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

// Private-profile files in memory; the first value of a key wins, as on the platform.
class FakeProfile : public PrivateProfile {
public:
    // By file, section and key.
    using Values = std::map<std::tuple<std::string, std::string, std::string>, std::string>;

    std::int32_t GetInt(const std::string& section, const std::string& key, std::int32_t fallback,
                        const std::string& file) override {
        const auto found = values.find({file, section, key});
        return found == values.end() ? fallback
                                     : static_cast<std::int32_t>(LeadingNumber(found->second));
    }
    std::string GetString(const std::string& section, const std::string& key,
                          const std::string& fallback, const std::string& file,
                          std::uint32_t bufferSize) override {
        asked.push_back(section + "/" + key);
        const auto found = values.find({file, section, key});
        const std::string given = stripsFallbacks ? Stripped(fallback) : fallback;
        return (found == values.end() ? given : found->second).substr(0, bufferSize - 1);
    }
    bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                     const std::string& file) override {
        if (isReadOnly)
            return false;
        written.push_back(section + "/" + key + "=" + value);
        values[{file, section, key}] = value;
        return true;
    }

    Values values;
    std::vector<std::string> asked;
    std::vector<std::string> written;
    bool isReadOnly = false;
    bool stripsFallbacks = false; // of blanks at the end and of quotes, as some platforms do

private:
    static std::string Stripped(std::string text) {
        while (!text.empty() && text.back() == ' ')
            text.pop_back();
        const bool isQuoted = text.size() > 1 && (text.front() == '"' || text.front() == '\'') &&
                              text.back() == text.front();
        return isQuoted ? text.substr(1, text.size() - 2) : text;
    }
};
