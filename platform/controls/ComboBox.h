#pragma once

#include "platform/controls/Control.h"

#include <functional>

// A list of entries that drops down; only an entry can be chosen.
class ComboBox : public Control, public ListEntries {
public:
    ComboBox(ControlHost& host, const ControlPlace& place);

    [[nodiscard]] ListEntries* List() override { return this; }
    [[nodiscard]] std::int32_t Count() const override;
    [[nodiscard]] std::string Entry(std::int32_t index) const override;
    void Clear() override;
    void Add(const std::string& text) override;
    [[nodiscard]] std::int32_t ListIndex() const override;
    void SetListIndex(std::int32_t index) override; // not reported as a choice

    std::function<void(int index)> onChoose;

    void OnCommand(WPARAM wParam) override;
};
