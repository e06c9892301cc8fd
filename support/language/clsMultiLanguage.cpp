#include "support/language/clsMultiLanguage.h"

#include "common/FileNames.h"
#include "common/Numbers.h"
#include "common/RuntimeError.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <string_view>

namespace {

constexpr std::uint32_t kBufferSize = 256;
constexpr const char* kInfoSection = "Info";
constexpr const char* kToolTipText = "ToolTipText";
constexpr std::array kButtonProperties = {"Caption", "ToolTipText", "Description"};

// The properties of the control types that have nothing but properties, in the order in which they
// are read and written.
std::span<const char* const> PropertiesOfType(std::string_view typeName) {
    static constexpr std::array menu = {"Caption"};
    static constexpr std::array captioned = {"Caption", "ToolTipText"};
    static constexpr std::array textBox = {"Text", "ToolTipText"};
    static constexpr std::array toolTipOnly = {"ToolTipText"};
    if (typeName == "Menu")
        return menu;
    if (typeName == "Label" || typeName == "Frame" || typeName == "CommandButton" ||
        typeName == "CheckBox")
        return captioned;
    if (typeName == "TextBox")
        return textBox;
    if (typeName == "ListView" || typeName == "TreeView" || typeName == "StatusBar")
        return toolTipOnly;
    return {};
}

bool HasTexts(ToolbarButtonStyle style) {
    return style == ToolbarButtonStyle::Default || style == ToolbarButtonStyle::Check ||
           style == ToolbarButtonStyle::ButtonGroup || style == ToolbarButtonStyle::DropDown;
}

std::string ButtonPrefix(const FormControl& toolbar, const ToolbarButtons& buttons,
                         std::int32_t button) {
    return toolbar.Name() + "." + buttons.ButtonKey(button) + ".";
}

// The platform cuts a fallback to its buffer and takes blanks off its end before giving it back.
std::string AsGivenBack(std::string fallback) {
    fallback.resize(std::min<std::size_t>(fallback.size(), kBufferSize - 1));
    while (!fallback.empty() && fallback.back() == ' ')
        fallback.pop_back();
    return fallback;
}

std::string WithoutQuotes(const std::string& text) {
    const bool isQuoted = text.size() > 1 && (text.front() == '"' || text.front() == '\'') &&
                          text.back() == text.front();
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

} // namespace

std::int16_t clsMultiLanguage::INIGetSettingInteger(const std::string& section,
                                                    const std::string& key, const std::string& file,
                                                    std::int16_t fallback) {
    const std::int32_t stored =
        profile_.GetInt(codePage_.Encode(section).bytes, codePage_.Encode(key).bytes, fallback,
                        codePage_.Encode(file).bytes);
    const bool fits = stored >= std::numeric_limits<std::int16_t>::min() &&
                      stored <= std::numeric_limits<std::int16_t>::max();
    return fits ? static_cast<std::int16_t>(stored) : std::int16_t{0};
}

std::string clsMultiLanguage::INIGetSettingString(const std::string& section,
                                                  const std::string& key, const std::string& file,
                                                  const std::string& fallback) {
    return codePage_.Decode(profile_.GetString(
        codePage_.Encode(section).bytes, codePage_.Encode(key).bytes,
        codePage_.Encode(fallback).bytes, codePage_.Encode(file).bytes, kBufferSize));
}

bool clsMultiLanguage::INIWriteSetting(const std::string& section, const std::string& key,
                                       const std::string& value, const std::string& file) {
    return profile_.WriteString(codePage_.Encode(section).bytes, codePage_.Encode(key).bytes,
                                codePage_.Encode(value).bytes, codePage_.Encode(file).bytes);
}

bool clsMultiLanguage::FileExists(const std::string& path) {
    return !path.empty() && !files_.FindNormalFile(path).empty();
}

std::string clsMultiLanguage::FileGetNamePart(const std::string& path) {
    return FileNamePart(path);
}

std::string clsMultiLanguage::FileGetPathPart(const std::string& path) {
    return FilePathPart(path);
}

void clsMultiLanguage::SetIniFile(const std::string& path) {
    iniFile_ = FileExists(path) ? path : std::string();
    if (!iniFile_.empty())
        shownFile_ = iniFile_;
}

std::string clsMultiLanguage::GetInfoText(std::int32_t number) {
    if (!FileExists(iniFile_))
        return "INI file doesn't exists " + iniFile_;
    return GetInfoTextOr(number, "unknown infotext " + std::to_string(number));
}

std::string clsMultiLanguage::GetInfoTextOr(std::int32_t number, const std::string& builtIn) {
    const std::string& file = iniFile_.empty() ? shownFile_ : iniFile_;
    if (!FileExists(file))
        return builtIn;
    return INIGetSettingString(kInfoSection, "Text." + std::to_string(number), file, builtIn);
}

void clsMultiLanguage::SetAllControlText(LocalizableForm& form) {
    if (!FileExists(iniFile_))
        return;
    const ProfileWalk walk(profile_);
    for (FormControl* control : form.Controls())
        LoadControl(form.Name(), *control);
}

void clsMultiLanguage::SetControlText(const LocalizableForm& form, FormControl& control) {
    if (FileExists(iniFile_))
        LoadControl(form.Name(), control);
}

void clsMultiLanguage::LoadControl(const std::string& section, FormControl& control) {
    const std::string typeName = control.TypeName();
    // "Listbox" is spelt so on purpose: list boxes call themselves "ListBox" and are never
    // localised on loading, while the template writer knows them.
    if (typeName == "Listbox" || typeName == "ComboBox")
        LoadList(section, control);
    else if (typeName == "Toolbar")
        LoadToolbar(section, control);
    else
        LoadProperties(section, control);
}

// The current text itself, not what is left of it in the code page, when the key is missing.
std::string clsMultiLanguage::ReadOr(const std::string& section, const std::string& key,
                                     const std::string& current) {
    const std::string read = INIGetSettingString(section, key, iniFile_, current);
    const std::string fallback = AsGivenBack(codePage_.Encode(current).bytes);
    // Wine takes quotes off a fallback, as off a value of the file.
    const bool isMissing =
        read == codePage_.Decode(fallback) || read == codePage_.Decode(WithoutQuotes(fallback));
    return isMissing ? current : read;
}

void clsMultiLanguage::LoadProperties(const std::string& section, FormControl& control) {
    for (const char* property : PropertiesOfType(control.TypeName())) {
        const bool wasDisabled = std::string_view(property) == "Text" && !control.IsEnabled();
        if (wasDisabled)
            control.SetEnabled(true);
        LoadProperty(section, control, property);
        if (wasDisabled)
            control.SetEnabled(false);
    }
}

void clsMultiLanguage::LoadProperty(const std::string& section, FormControl& control,
                                    const std::string& property) {
    control.SetProperty(
        property, ReadOr(section, control.Name() + "." + property, control.Property(property)));
}

void clsMultiLanguage::LoadList(const std::string& section, FormControl& control) {
    ListEntries& entries = *control.List();
    const std::string prefix = control.Name() + ".";
    entries.Clear();
    // A list counts its entries in 16 bits.
    const std::int16_t count = TextToInt16(INIGetSettingString(
        section, prefix + "ListCount", iniFile_, std::to_string(entries.Count())));
    for (std::int32_t index = 0; index < count; ++index)
        entries.Add(INIGetSettingString(section, prefix + "AddItem" + std::to_string(index),
                                        iniFile_, entries.Entry(index)));
    LoadProperty(section, control, kToolTipText);
    entries.SetListIndex(TextToInt32(INIGetSettingString(section, prefix + "Default", iniFile_,
                                                         std::to_string(entries.ListIndex()))));
}

void clsMultiLanguage::LoadToolbar(const std::string& section, FormControl& control) {
    ToolbarButtons& buttons = *control.Buttons();
    for (std::int32_t button = 1; button <= buttons.ButtonCount(); ++button) {
        if (!HasTexts(buttons.ButtonStyle(button)))
            continue;
        const std::string prefix = ButtonPrefix(control, buttons, button);
        for (const char* property : kButtonProperties)
            buttons.SetButtonProperty(
                button, property,
                ReadOr(section, prefix + property, buttons.ButtonProperty(button, property)));
        if (buttons.ButtonStyle(button) != ToolbarButtonStyle::DropDown)
            continue;
        for (std::int32_t entry = 1; entry <= buttons.MenuCount(button); ++entry)
            buttons.SetMenuText(button, entry,
                                ReadOr(section, prefix + buttons.MenuKey(button, entry) + ".Text",
                                       buttons.MenuText(button, entry)));
    }
}

void clsMultiLanguage::GetAllControlText(LocalizableForm& form) {
    for (FormControl* control : form.Controls())
        GetControlText(form, *control);
}

void clsMultiLanguage::GetControlText(const LocalizableForm& form, FormControl& control) {
    const std::string section = form.Name();
    const std::string typeName = control.TypeName();
    if (typeName == "ListBox" || typeName == "ComboBox") {
        SaveList(section, control);
        return;
    }
    if (typeName == "Toolbar") {
        SaveToolbar(section, control);
        return;
    }
    const auto properties = PropertiesOfType(typeName);
    if (properties.empty())
        Save(section, control.Name() + ".TypeName", typeName + "*** unbekannte Steuerelemente");
    for (const char* property : properties)
        Save(section, control.Name() + "." + property, control.Property(property));
}

void clsMultiLanguage::SaveList(const std::string& section, FormControl& control) {
    const ListEntries& entries = *control.List();
    const std::string prefix = control.Name() + ".";
    Save(section, prefix + "Default", std::to_string(entries.ListIndex()));
    Save(section, prefix + "ListCount", std::to_string(entries.Count()));
    for (std::int32_t index = 0; index < entries.Count(); ++index)
        Save(section, prefix + "AddItem" + std::to_string(index), entries.Entry(index));
    Save(section, prefix + kToolTipText, control.Property(kToolTipText));
}

void clsMultiLanguage::SaveToolbar(const std::string& section, FormControl& control) {
    const ToolbarButtons& buttons = *control.Buttons();
    for (std::int32_t button = 1; button <= buttons.ButtonCount(); ++button) {
        if (!HasTexts(buttons.ButtonStyle(button)))
            continue;
        const std::string prefix = ButtonPrefix(control, buttons, button);
        for (const char* property : kButtonProperties)
            Save(section, prefix + property, buttons.ButtonProperty(button, property));
        if (buttons.ButtonStyle(button) != ToolbarButtonStyle::DropDown)
            continue;
        for (std::int32_t entry = 1; entry <= buttons.MenuCount(button); ++entry)
            Save(section, prefix + buttons.MenuKey(button, entry) + ".Text",
                 buttons.MenuText(button, entry));
    }
}

void clsMultiLanguage::Save(const std::string& section, const std::string& key,
                            const std::string& value) {
    INIWriteSetting(section, key, value, templateFile_);
}
