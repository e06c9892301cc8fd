#pragma once

#include "platform/controls/Control.h"
#include "platform/controls/Painted.h"

#include <functional>

enum class LabelText { AccessKeys, Plain }; // an "&" marks an access key, or is shown as it is

// A text that is only shown.
class Label : public Control {
public:
    Label(ControlHost& host, const ControlPlace& place, LabelText kind = LabelText::AccessKeys);

    // The tool tip is the name by which the control is announced, too.
    void Announces(Control& control) noexcept { announced_ = &control; }
    void SetProperty(const std::string& property, const std::string& text) override;

    void SetFont(HFONT font);                                // kept by the caller
    [[nodiscard]] SIZE TextSize(int maximumWidth = 0) const; // pixels

private:
    [[nodiscard]] HFONT CurrentFont() const;

    Control* announced_ = nullptr;
};

// A name, on one line: what is cut ends with an ellipsis, and the tool tip shows all of it.
class NameLabel : public Label {
public:
    NameLabel(ControlHost& host, const ControlPlace& place);

protected:
    [[nodiscard]] bool IsTextCut() const override;
};

// A text that is clicked like a link: by mouse, Space or Enter.
class LinkLabel : public Painted<Label> {
public:
    // ground: the system color (COLOR_...) that it stands on.
    LinkLabel(ControlHost& host, const ControlPlace& place, int ground = COLOR_3DFACE);

    std::function<void()> onClick;

    void OnCommand(WPARAM wParam) override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
    void Paint(const Canvas& canvas, const RECT& area) const override;

private:
    int ground_;
};
