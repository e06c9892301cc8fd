#include "support/settings/modRegistry.h"

#include "support/settings/RegistryNumber.h"

RegistryVariant modRegistry::RegistryGetKeyValue(std::uint32_t root, const std::string& keyPath,
                                                 const std::string& valueName) const {
    const auto value = registry_.Query(root, keyPath, valueName, RegistryRights::Read);
    if (!value || value->bytes.empty())
        return {};
    if (value->type == RegistryType::String)
        return TextOf(*value);
    if (value->type == RegistryType::Binary)
        return std::vector<std::uint8_t>(value->bytes.begin(), value->bytes.end());
    const auto number = RegistryNumberFromBytes(value->bytes);
    if (value->type == RegistryType::DWord && number)
        return static_cast<std::int32_t>(*number);
    return {};
}

void modRegistry::RegistrySetKeyValue(std::uint32_t root, const std::string& keyPath,
                                      const std::string& valueName, const RegistryVariant& value,
                                      std::uint32_t type) const {
    if (const auto stored = Stored(value, type))
        registry_.Set(root, keyPath, valueName, *stored, RegistryRights::ReadWrite);
}

std::optional<RegistryValue> modRegistry::Stored(const RegistryVariant& value,
                                                 std::uint32_t type) const {
    const auto* number = std::get_if<std::int32_t>(&value);
    const auto* text = std::get_if<std::string>(&value);
    const auto* bytes = std::get_if<std::vector<std::uint8_t>>(&value);
    if (type == RegistryType::String && text)
        return StringValue(*text);
    if (type == RegistryType::String && number)
        return StringValue(std::to_string(*number));
    if (type == RegistryType::Binary && bytes)
        return RegistryValue{type, std::string(bytes->begin(), bytes->end())};
    if (type == RegistryType::DWord && number)
        return RegistryValue{type, RegistryNumberToBytes(static_cast<std::uint32_t>(*number))};
    return {};
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
