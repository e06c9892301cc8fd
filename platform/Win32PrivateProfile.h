#pragma once

#include "common/ports/PrivateProfile.h"
#include "common/ProfileSection.h"

#include <map>
#include <optional>
#include <utility>

// The three private-profile functions, bytes in and bytes out.  A walk reads each section once,
// where that gives what single reads give.
class Win32PrivateProfile : public PrivateProfile {
public:
    [[nodiscard]] std::int32_t GetInt(const std::string& section, const std::string& key,
                                      std::int32_t fallback, const std::string& file) override;

    [[nodiscard]] std::string GetString(const std::string& section, const std::string& key,
                                        const std::string& fallback, const std::string& file,
                                        std::uint32_t bufferSize) override;

    bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                     const std::string& file) override;

    void BeginWalk() override { walk_.emplace(); }
    void EndWalk() override { walk_.reset(); }

    // By file and section.
    using Sections = std::map<std::pair<std::string, std::string>, ProfileSection>;

private:
    std::optional<Sections> walk_; // while one goes on
};
