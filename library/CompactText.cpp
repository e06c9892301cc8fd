#include "library/CompactText.h"

CompactText::CompactText(std::string_view text) {
    if (text.size() <= kRoom) {
        text.copy(bytes_.data(), text.size());
        length_ = static_cast<std::uint8_t>(text.size());
    } else {
        const auto* const longText = new std::string(text);
        std::memcpy(bytes_.data(), &longText, kPointerSize);
        length_ = kIsLong;
    }
}
