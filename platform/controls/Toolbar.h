#pragma once

#include "platform/controls/Control.h"
#include "platform/IconList.h"

#include <functional>
#include <string>
#include <vector>

struct ToolbarMenuDesign {
    std::string key;
    std::string text;
    int command;
};

struct ToolbarButtonDesign {
    std::string key;
    ToolbarButtonStyle style;
    std::string toolTip;
    int command;      // of a separator: any number of its own
    std::string icon; // key in the image list
    std::vector<ToolbarMenuDesign> menu;
};

// The toolbar of a form; it places itself at the top and wraps its buttons.
class Toolbar : public Control, public ToolbarButtons {
public:
    // The image list is kept by the caller and fitted by this toolbar.
    Toolbar(ControlHost& host, const ControlPlace& place, IconList& images,
            const std::vector<ToolbarButtonDesign>& buttons);

    void SetPressed(const std::string& key, bool pressed);
    void SetVisible(const std::string& key, bool visible);
    void FollowForm();                             // after the form's width changed
    [[nodiscard]] int Height() const noexcept;     // pixels
    [[nodiscard]] int RightmostButtonEdge() const; // pixels, 0 without buttons
    std::function<void(int command)> onCommand;    // a button or an entry of its menu

    [[nodiscard]] ToolbarButtons* Buttons() override { return this; }
    [[nodiscard]] std::int32_t ButtonCount() const override;
    [[nodiscard]] std::string ButtonKey(std::int32_t button) const override;
    [[nodiscard]] ToolbarButtonStyle ButtonStyle(std::int32_t button) const override;
    [[nodiscard]] std::string ButtonProperty(std::int32_t button,
                                             const std::string& property) const override;
    void SetButtonProperty(std::int32_t button, const std::string& property,
                           const std::string& text) override;
    [[nodiscard]] std::int32_t MenuCount(std::int32_t button) const override;
    [[nodiscard]] std::string MenuKey(std::int32_t button, std::int32_t entry) const override;
    [[nodiscard]] std::string MenuText(std::int32_t button, std::int32_t entry) const override;
    void SetMenuText(std::int32_t button, std::int32_t entry, const std::string& text) override;

    void OnCommand(WPARAM wParam) override;
    MessageResult OnNotify(NMHDR& header) override;
    void ApplyScale() override;

private:
    struct Button {
        ToolbarButtonDesign design;
        std::string caption;
        std::string description;
    };

    void AddButtons();
    void ShowTexts(const Button& button);
    void OpenMenu(const Button& button);
    [[nodiscard]] static std::string* PropertyOf(Button& button, const std::string& property);
    [[nodiscard]] Button& At(std::int32_t button); // from 1
    [[nodiscard]] const Button& At(std::int32_t button) const;
    [[nodiscard]] const Button* FindCommand(int command) const;
    [[nodiscard]] int CommandOf(const std::string& key) const;

    IconList& images_;
    std::vector<Button> buttons_;
};
