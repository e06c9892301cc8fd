#pragma once

#include <cstdint>
#include <optional>
#include <string>

// The platform's private-profile functions.  All strings are bytes in the ANSI code page.
class PrivateProfile {
public:
    virtual ~PrivateProfile() = default;

    // GetPrivateProfileIntA.
    [[nodiscard]] virtual std::int32_t GetInt(const std::string& section, const std::string& key,
                                              std::int32_t fallback, const std::string& file) = 0;

    // GetPrivateProfileStringA with a buffer of bufferSize characters, the closing NUL included:
    // the characters up to the count that the platform returns.
    [[nodiscard]] virtual std::string GetString(const std::string& section, const std::string& key,
                                                const std::string& fallback,
                                                const std::string& file,
                                                std::uint32_t bufferSize) = 0;

    // WritePrivateProfileStringA: true when the platform reports success.
    virtual bool WriteString(const std::string& section, const std::string& key,
                             const std::string& value, const std::string& file) = 0;

    // Between the two the caller reads many texts, all of them as the files are at the first: what
    // was read of a file may be used again.
    virtual void BeginWalk() {}
    virtual void EndWalk() {}
};

// A walk for as long as this object is there.
class ProfileWalk {
public:
    explicit ProfileWalk(PrivateProfile& profile) : profile_(profile) { profile_.BeginWalk(); }
    ProfileWalk(const ProfileWalk&) = delete;
    ProfileWalk& operator=(const ProfileWalk&) = delete;
    ~ProfileWalk() { profile_.EndWalk(); }

private:
    PrivateProfile& profile_;
};
