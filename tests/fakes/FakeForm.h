#pragma once

#include "common/RuntimeError.h"
#include "common/ports/LocalizableForm.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class FakeListEntries : public ListEntries {
public:
    std::int32_t Count() const override { return static_cast<std::int32_t>(entries.size()); }
    std::string Entry(std::int32_t index) const override {
        return index >= 0 && index < Count() ? entries[static_cast<std::size_t>(index)]
                                             : std::string();
    }
    void Clear() override {
        entries.clear();
        selected = -1;
    }
    void Add(const std::string& text) override { entries.push_back(text); }
    std::int32_t ListIndex() const override { return selected; }
    void SetListIndex(std::int32_t index) override {
        if (index < -1 || index >= Count())
            throw RuntimeError(ErrorNumber::InvalidPropertyValue, "Invalid property value");
        selected = index;
    }

    std::vector<std::string> entries;
    std::int32_t selected = -1;
};

class FakeToolbarButtons : public ToolbarButtons {
public:
    struct Button {
        std::string key;
        ToolbarButtonStyle style = ToolbarButtonStyle::Default;
        std::vector<std::pair<std::string, std::string>> menu; // key, text
        std::map<std::string, std::string> properties;
    };

    std::int32_t ButtonCount() const override { return static_cast<std::int32_t>(buttons.size()); }
    std::string ButtonKey(std::int32_t button) const override { return At(button).key; }
    ToolbarButtonStyle ButtonStyle(std::int32_t button) const override { return At(button).style; }
    std::string ButtonProperty(std::int32_t button, const std::string& property) const override {
        const auto found = At(button).properties.find(property);
        return found == At(button).properties.end() ? std::string() : found->second;
    }
    void SetButtonProperty(std::int32_t button, const std::string& property,
                           const std::string& text) override {
        buttons.at(static_cast<std::size_t>(button - 1)).properties[property] = text;
    }
    std::int32_t MenuCount(std::int32_t button) const override {
        return static_cast<std::int32_t>(At(button).menu.size());
    }
    std::string MenuKey(std::int32_t button, std::int32_t entry) const override {
        return At(button).menu.at(static_cast<std::size_t>(entry - 1)).first;
    }
    std::string MenuText(std::int32_t button, std::int32_t entry) const override {
        return At(button).menu.at(static_cast<std::size_t>(entry - 1)).second;
    }
    void SetMenuText(std::int32_t button, std::int32_t entry, const std::string& text) override {
        buttons.at(static_cast<std::size_t>(button - 1))
            .menu.at(static_cast<std::size_t>(entry - 1))
            .second = text;
    }

    std::vector<Button> buttons;

private:
    const Button& At(std::int32_t button) const {
        return buttons.at(static_cast<std::size_t>(button - 1));
    }
};

class FakeControl : public FormControl {
public:
    FakeControl(std::string name, std::string typeName) // NOLINT: name and type, as everywhere
        : name_(std::move(name)), typeName_(std::move(typeName)) {}

    std::string Name() const override { return name_; }
    std::string TypeName() const override { return typeName_; }
    std::string Property(const std::string& property) const override {
        const auto found = properties.find(property);
        if (found == properties.end())
            throw RuntimeError(ErrorNumber::NoSuchMember, "No such property", property);
        return found->second;
    }
    void SetProperty(const std::string& property, const std::string& text) override {
        if (!properties.contains(property))
            throw RuntimeError(ErrorNumber::NoSuchMember, "No such property", property);
        properties[property] = text;
        enabledAtSet.push_back(isEnabled);
    }
    bool IsEnabled() const override { return isEnabled; }
    void SetEnabled(bool enabled) override { isEnabled = enabled; }
    ListEntries* List() override { return &list; }
    ToolbarButtons* Buttons() override { return &toolbar; }

    std::map<std::string, std::string> properties;
    std::vector<bool> enabledAtSet;
    bool isEnabled = true;
    FakeListEntries list;
    FakeToolbarButtons toolbar;

private:
    std::string name_;
    std::string typeName_;
};

class FakeForm : public LocalizableForm {
public:
    explicit FakeForm(std::string name) : name_(std::move(name)) {}

    FakeControl& Add(const std::string& name, const std::string& typeName) {
        controls_.push_back(std::make_unique<FakeControl>(name, typeName));
        FakeControl& control = *controls_.back();
        for (const char* property : {"Caption", "Text", "ToolTipText"})
            control.properties[property] = std::string("built-in ") + property;
        return control;
    }
    std::string Name() const override { return name_; }
    std::vector<FormControl*> Controls() override {
        std::vector<FormControl*> controls;
        for (const auto& control : controls_)
            controls.push_back(control.get());
        return controls;
    }

private:
    std::string name_;
    std::vector<std::unique_ptr<FakeControl>> controls_;
};
