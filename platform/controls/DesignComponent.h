#pragma once

#include "platform/controls/NoSuchMember.h"

#include "common/ports/LocalizableForm.h"

#include <string>

// A part of a form that has a name but nothing to be seen: a timer, a dialog.
class DesignComponent : public FormControl {
public:
    DesignComponent(std::string name, std::string typeName)
        : name_(std::move(name)), typeName_(std::move(typeName)) {}

    [[nodiscard]] std::string Name() const override { return name_; }
    [[nodiscard]] std::string TypeName() const override { return typeName_; }
    [[nodiscard]] std::string Property(const std::string& property) const override {
        ThrowNoSuchMember(name_, property);
    }
    void SetProperty(const std::string& property, const std::string&) override {
        ThrowNoSuchMember(name_, property);
    }

private:
    std::string name_;
    std::string typeName_;
};
