#include "platform/controls/HiddenCaption.h"

namespace {

constexpr const char* kCaption = "Caption";

} // namespace

std::string HiddenCaption::Property(const std::string& property) const {
    return property == kCaption ? caption_ : DesignComponent::Property(property);
}

void HiddenCaption::SetProperty(const std::string& property, const std::string& text) {
    if (property != kCaption)
        DesignComponent::SetProperty(property, text);
    if (text == caption_)
        return;
    caption_ = text;
    onChange_(caption_);
}
