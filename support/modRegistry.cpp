#include "support/modRegistry.h"

#include <optional>

namespace {

constexpr std::size_t kNumberSize = 4;

// Little-endian, as the registry keeps a REG_DWORD.
std::int32_t NumberOf(const std::string& bytes) {
    std::uint32_t number = 0;
    for (std::size_t index = kNumberSize; index-- > 0;)
        number = number * 256U + static_cast<unsigned char>(bytes[index]);
    return static_cast<std::int32_t>(number);
}

std::string BytesOf(std::int32_t number) {
    std::string bytes;
    auto rest = static_cast<std::uint32_t>(number);
    for (std::size_t index = 0; index < kNumberSize; ++index, rest /= 256U)
        bytes += static_cast<char>(static_cast<unsigned char>(rest % 256U));
    return bytes;
}

} // namespace

RegistryVariant modRegistry::RegistryGetKeyValue(std::uint32_t root, const std::string& keyPath,
                                                 const std::string& valueName) const {
    const auto value = registry_.Query(root, keyPath, valueName, RegistryRights::Read);
    if (!value || value->bytes.empty())
        return {};
    if (value->type == RegistryType::String)
        return TextOf(*value);
    if (value->type == RegistryType::Binary)
        return std::vector<std::uint8_t>(value->bytes.begin(), value->bytes.end());
    if (value->type == RegistryType::DWord && value->bytes.size() == kNumberSize)
        return NumberOf(value->bytes);
    return {};
}

void modRegistry::RegistrySetKeyValue(std::uint32_t root, const std::string& keyPath,
                                      const std::string& valueName, const RegistryVariant& value,
                                      std::uint32_t type) const {
    std::optional<RegistryValue> stored;
    if (const auto* text = std::get_if<std::string>(&value); text && type == RegistryType::String)
        stored = StringValue(*text);
    if (const auto* bytes = std::get_if<std::vector<std::uint8_t>>(&value);
        bytes && type == RegistryType::Binary)
        stored = RegistryValue{type, std::string(bytes->begin(), bytes->end())};
    if (const auto* number = std::get_if<std::int32_t>(&value);
        number && type == RegistryType::DWord)
        stored = RegistryValue{type, BytesOf(*number)};
    if (stored)
        registry_.Set(root, keyPath, valueName, *stored, RegistryRights::ReadWrite);
}

std::string modRegistry::ReadString(std::uint32_t root, const std::string& keyPath,
                                    const std::string& valueName) const {
    const auto value = registry_.Query(root, keyPath, valueName, RegistryRights::QueryValue);
    return value && value->type == RegistryType::String ? TextOf(*value) : std::string();
}

void modRegistry::WriteString(std::uint32_t root, const std::string& keyPath,
                              const std::string& valueName, const std::string& text) const {
    registry_.Set(root, keyPath, valueName, StringValue(text), RegistryRights::Write);
}

std::string modRegistry::TextOf(const RegistryValue& value) const {
    return codePage_.Decode(value.bytes.substr(0, value.bytes.find('\0')));
}

RegistryValue modRegistry::StringValue(const std::string& text) const {
    return {RegistryType::String, codePage_.Encode(text).bytes + '\0'};
}
