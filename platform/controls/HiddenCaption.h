#pragma once

#include "platform/controls/DesignComponent.h"

#include <functional>
#include <string>

// A text of a form that has no place of its own: the name of a key in the shortcuts of a menu, the
// name by which a screen reader announces a control.
class HiddenCaption : public DesignComponent {
public:
    // onChange: called with each new caption.
    HiddenCaption(const std::string& name, std::string caption,
                  std::function<void(const std::string& caption)> onChange)
        : DesignComponent(name, "Menu"), caption_(std::move(caption)),
          onChange_(std::move(onChange)) {}

    [[nodiscard]] std::string Property(const std::string& property) const override;
    void SetProperty(const std::string& property, const std::string& text) override;

private:
    std::string caption_;
    std::function<void(const std::string&)> onChange_;
};
