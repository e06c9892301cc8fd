#include "app/SettingsStore.h"

#include "common/Numbers.h"
#include "common/ProgramNames.h"
#include "common/RuntimeError.h"

#include <array>
#include <cstdint>
#include <variant>

namespace {

using SettingMember =
    std::variant<std::int16_t Settings::*, bool Settings::*, std::string Settings::*>;

struct SettingRow {
    const char* name;
    SettingMember member;
    bool onceUsed = false; // stored only once it has had another value than its default
};

// The order in which the settings are read and written.
constexpr std::array kSettings = {
    SettingRow{"Language", &Settings::language},
    SettingRow{"AlwaysOnTop", &Settings::alwaysOnTop},
    SettingRow{"ConfirmDel", &Settings::confirmDel},
    SettingRow{"CreateBackups", &Settings::createBackups},
    SettingRow{"ViewToolbar", &Settings::viewToolbar},
    SettingRow{"ViewBarStandards", &Settings::viewBarStandards},
    SettingRow{"ViewBarColor", &Settings::viewBarColor},
    SettingRow{"ViewBarListview", &Settings::viewBarListview},
    SettingRow{"ViewBarSolidWorks", &Settings::viewBarSolidWorks},
    SettingRow{"ViewStatusBar", &Settings::viewStatusBar},
    SettingRow{"ViewHugeColorDialog", &Settings::viewHugeColorDialog},
    SettingRow{"DefaultColorFile", &Settings::defaultColorFile},
    SettingRow{"ViewColorsInList", &Settings::viewColorsInList, true},
    SettingRow{"ViewMaterialPreview", &Settings::viewMaterialPreview, true},
};

constexpr const char* kLastSponsorShown = "LastSponsorShown";

// Text conversions of the three kinds of settings, in both directions.
void Assign(std::int16_t& setting, const std::string& text) {
    setting = TextToInt16(text);
}
void Assign(bool& setting, const std::string& text) {
    setting = TextToBoolean(text);
}
void Assign(std::string& setting, const std::string& text) {
    setting = text;
}

std::string TextOf(std::int16_t setting) {
    return std::to_string(setting);
}
std::string TextOf(bool setting) {
    return BooleanToText(setting);
}
std::string TextOf(const std::string& setting) {
    return setting;
}

std::string TextOf(const SettingRow& row, const Settings& settings) {
    return std::visit([&](auto member) { return TextOf(settings.*member); }, row.member);
}

bool Converts(const SettingRow& row, const std::string& text, Settings& settings) {
    try {
        std::visit([&](auto member) { Assign(settings.*member, text); }, row.member);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace

std::vector<std::string> SettingsStore::Load(Settings& settings) const {
    std::vector<std::string> unreadable;
    for (const SettingRow& row : kSettings) {
        const std::optional<std::string> text = Read(row.name);
        if (!text || (!text->empty() && !Converts(row, *text, settings)))
            unreadable.emplace_back(row.name);
    }
    return unreadable;
}

void SettingsStore::Save(const Settings& settings) const {
    for (const SettingRow& row : kSettings) {
        const std::string text = TextOf(row, settings);
        if (!row.onceUsed || text != TextOf(row, Settings{}) || Read(row.name) != std::string())
            Write(row.name, text);
    }
}

std::string SettingsStore::LoadLastSponsorShown() const {
    const std::string text = Read(kLastSponsorShown).value_or("");
    return text.empty() ? "1" : text;
}

void SettingsStore::SaveLastSponsorShown(int index) const {
    Write(kLastSponsorShown, std::to_string(index));
}

std::optional<std::string> SettingsStore::Read(const std::string& name) const {
    const RegistryVariant value =
        registry_.RegistryGetKeyValue(RegistryRoot::CurrentUser, ProgramNames::RegistryPath, name);
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    if (const auto* number = std::get_if<std::int32_t>(&value))
        return std::to_string(*number);
    const bool isMissing = std::holds_alternative<std::monostate>(value);
    return isMissing ? std::optional(std::string()) : std::nullopt;
}

void SettingsStore::Write(const std::string& name, const std::string& text) const {
    registry_.RegistrySetKeyValue(RegistryRoot::CurrentUser, ProgramNames::RegistryPath, name, text,
                                  RegistryType::String);
}
