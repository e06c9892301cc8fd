#pragma once

#include "common/ports/PrivateProfile.h"

// The three private-profile functions, bytes in and bytes out.
class Win32PrivateProfile : public PrivateProfile {
public:
    [[nodiscard]] std::int32_t GetInt(const std::string& section, const std::string& key,
                                      std::int32_t fallback, const std::string& file) override;

    [[nodiscard]] std::string GetString(const std::string& section, const std::string& key,
                                        const std::string& fallback, const std::string& file,
                                        std::uint32_t bufferSize) override;

    bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                     const std::string& file) override;
};
