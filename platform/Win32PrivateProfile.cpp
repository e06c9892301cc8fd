#include "platform/Win32PrivateProfile.h"

#include <windows.h>

std::int32_t Win32PrivateProfile::GetInt(const std::string& section, const std::string& key,
                                         std::int32_t fallback, const std::string& file) {
    return static_cast<std::int32_t>(
        GetPrivateProfileIntA(section.c_str(), key.c_str(), fallback, file.c_str()));
}

std::string Win32PrivateProfile::GetString(const std::string& section, const std::string& key,
                                           const std::string& fallback, const std::string& file,
                                           std::uint32_t bufferSize) {
    std::string text(bufferSize, '\0');
    text.resize(GetPrivateProfileStringA(section.c_str(), key.c_str(), fallback.c_str(),
                                         text.data(), bufferSize, file.c_str()));
    return text;
}

bool Win32PrivateProfile::WriteString(const std::string& section, const std::string& key,
                                      const std::string& value, const std::string& file) {
    return WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), file.c_str()) !=
           FALSE;
}
