#pragma once

#include "platform/controls/Painted.h"
#include "platform/Handles.h"

#include <functional>

// A picture that may be clicked.  It keeps its proportions and is centred in the box.
class PictureBox : public Painted<> {
public:
    PictureBox(ControlHost& host, const ControlPlace& place);

    // picture: kept by the caller; null: nothing is drawn.  isLink: whether the pointer over it is
    // the hand.
    void SetPicture(HBITMAP picture, bool isLink);
    [[nodiscard]] bool HasPicture() const noexcept { return picture_ != nullptr; }
    [[nodiscard]] int WidthForHeight(int height) const noexcept; // in its proportions

    std::function<void()> onClick;

    void OnCommand(WPARAM wParam) override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
    void Paint(const Canvas& canvas, const RECT& area) const override;

private:
    [[nodiscard]] SIZE PictureSize() const noexcept;

    HBITMAP picture_ = nullptr;
    bool isLink_ = true;
};

// The program's icon.
class IconBox : public Control {
public:
    IconBox(ControlHost& host, const ControlPlace& place, int designSize);

    void ApplyScale() override;

private:
    int designSize_;
    IconHandle icon_;
};
