#pragma once

#include "common/ports/FormWindow.h"

#include <string>
#include <vector>

class FakeFormWindow : public FormWindow {
public:
    explicit FakeFormWindow(std::string name = "frmMain") : name_(std::move(name)) {}

    std::string Name() const override { return name_; }
    TwipsRect Bounds() const override { return bounds; }
    void Move(const TwipsRect& newBounds) override {
        bounds = newBounds;
        ++moves;
    }
    WindowState State() const override { return state; }
    void SetState(WindowState newState) override { state = newState; }
    TwipsSize ScreenSize() const override { return screen; }
    void SetTopmost(bool onTop) override { topmost.push_back(onTop); }

    TwipsRect bounds{1200, 900, 9600, 7200};
    WindowState state = WindowState::Normal;
    TwipsSize screen{15360, 11520};
    std::vector<bool> topmost;
    int moves = 0;

private:
    std::string name_;
};
