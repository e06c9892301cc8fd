#pragma once

#include <cstdint>
#include <string>
#include <vector>

// What the language class sees of a form: its name and its controls with their names, type names
// and text properties.  Texts are UTF-8.

// The entries of a list box or combo box, counted from 0.
class ListEntries {
public:
    virtual ~ListEntries() = default;
    [[nodiscard]] virtual std::int32_t Count() const = 0;
    [[nodiscard]] virtual std::string Entry(std::int32_t index) const = 0; // empty past the end
    virtual void Clear() = 0;
    virtual void Add(const std::string& text) = 0;
    [[nodiscard]] virtual std::int32_t ListIndex() const = 0; // -1: none
    // Throws RuntimeError InvalidPropertyValue when there is no such entry; -1 selects none.
    virtual void SetListIndex(std::int32_t index) = 0;
};

enum class ToolbarButtonStyle {
    Default = 0,
    Check = 1,
    ButtonGroup = 2,
    Separator = 3,
    Placeholder = 4,
    DropDown = 5
};

// The buttons of a toolbar and the entries of their menus, both counted from 1.
class ToolbarButtons {
public:
    virtual ~ToolbarButtons() = default;
    [[nodiscard]] virtual std::int32_t ButtonCount() const = 0;
    [[nodiscard]] virtual std::string ButtonKey(std::int32_t button) const = 0;
    [[nodiscard]] virtual ToolbarButtonStyle ButtonStyle(std::int32_t button) const = 0;
    // property: "Caption", "ToolTipText" or "Description".
    [[nodiscard]] virtual std::string ButtonProperty(std::int32_t button,
                                                     const std::string& property) const = 0;
    virtual void SetButtonProperty(std::int32_t button, const std::string& property,
                                   const std::string& text) = 0;
    [[nodiscard]] virtual std::int32_t MenuCount(std::int32_t button) const = 0;
    [[nodiscard]] virtual std::string MenuKey(std::int32_t button, std::int32_t entry) const = 0;
    [[nodiscard]] virtual std::string MenuText(std::int32_t button, std::int32_t entry) const = 0;
    virtual void SetMenuText(std::int32_t button, std::int32_t entry, const std::string& text) = 0;
};

class FormControl {
public:
    virtual ~FormControl() = default;
    [[nodiscard]] virtual std::string Name() const = 0;
    // "Menu", "Label", "TextBox", "Toolbar", ...
    [[nodiscard]] virtual std::string TypeName() const = 0;

    // property: "Caption", "Text" or "ToolTipText".  Throws RuntimeError NoSuchMember when the
    // control has no such property.
    [[nodiscard]] virtual std::string Property(const std::string& property) const = 0;
    virtual void SetProperty(const std::string& property, const std::string& text) = 0;

    [[nodiscard]] virtual bool IsEnabled() const { return true; }
    virtual void SetEnabled(bool) {}

    // Null unless the control is a list box or combo box, or a toolbar.
    [[nodiscard]] virtual ListEntries* List() { return nullptr; }
    [[nodiscard]] virtual ToolbarButtons* Buttons() { return nullptr; }
};

class LocalizableForm {
public:
    virtual ~LocalizableForm() = default;
    [[nodiscard]] virtual std::string Name() const = 0;
    // In the order in which the form was designed.  The controls belong to the form.
    [[nodiscard]] virtual std::vector<FormControl*> Controls() = 0;
};
