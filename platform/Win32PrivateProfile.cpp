#include "platform/Win32PrivateProfile.h"

#include <windows.h>

namespace {

// Longer sections are cut by some versions of the platform; they are read text by text.
constexpr DWORD kMostBytes = 32'000;

// Nothing: it is longer.
template <typename Read>
std::optional<std::string> WholeOf(const Read& read) {
    std::string bytes(kMostBytes, '\0');
    bytes.resize(read(bytes.data(), kMostBytes));
    return bytes.size() < kMostBytes - 2 ? std::optional(std::move(bytes)) : std::nullopt;
}

std::optional<std::string> LinesOf(const std::string& section, const std::string& file) {
    return WholeOf([&](char* bytes, DWORD size) {
        return GetPrivateProfileSectionA(section.c_str(), bytes, size, file.c_str());
    });
}

std::optional<std::string> SectionNamesOf(const std::string& file) {
    return WholeOf([&](char* bytes, DWORD size) {
        return GetPrivateProfileSectionNamesA(bytes, size, file.c_str());
    });
}

// One that knows of no section leaves all its keys to the platform.
ProfileSection ReadSection(const std::string& section, const std::string& file) {
    const std::optional<std::string> lines = LinesOf(section, file);
    const std::optional<std::string> names = lines ? SectionNamesOf(file) : std::nullopt;
    return {section, lines.value_or(""), names.value_or("")};
}

const ProfileSection& SectionIn(Win32PrivateProfile::Sections& sections, const std::string& section,
                                const std::string& file) {
    auto found = sections.find({file, section});
    if (found == sections.end())
        found = sections.try_emplace({file, section}, ReadSection(section, file)).first;
    return found->second;
}

} // namespace

std::int32_t Win32PrivateProfile::GetInt(const std::string& section, const std::string& key,
                                         std::int32_t fallback, const std::string& file) {
    return static_cast<std::int32_t>(
        GetPrivateProfileIntA(section.c_str(), key.c_str(), fallback, file.c_str()));
}

std::string Win32PrivateProfile::GetString(const std::string& section, const std::string& key,
                                           const std::string& fallback, const std::string& file,
                                           std::uint32_t bufferSize) {
    if (walk_)
        if (auto text = SectionIn(*walk_, section, file).Find(key, fallback);
            text && text->size() < bufferSize)
            return std::move(*text);
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
