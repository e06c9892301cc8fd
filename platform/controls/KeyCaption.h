#pragma once

#include "platform/controls/DesignComponent.h"

#include <functional>
#include <string>

// What a key is called in the shortcuts of a menu.
class KeyCaption : public DesignComponent {
public:
    // onChange: called with each new caption.
    KeyCaption(const std::string& name, std::string caption,
               std::function<void(const std::string& caption)> onChange)
        : DesignComponent(name, "Menu"), caption_(std::move(caption)),
          onChange_(std::move(onChange)) {}

    [[nodiscard]] std::string Property(const std::string& property) const override;
    void SetProperty(const std::string& property, const std::string& text) override;

private:
    std::string caption_;
    std::function<void(const std::string&)> onChange_;
};
