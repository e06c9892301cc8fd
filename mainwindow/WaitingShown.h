#pragma once

#include "mainwindow/MainView.h"

// The hour-glass, for as long as this lives.
class WaitingShown {
public:
    explicit WaitingShown(MainFrame& frame) : frame_(frame) { frame_.SetWaiting(true); }
    ~WaitingShown() { frame_.SetWaiting(false); }
    WaitingShown(const WaitingShown&) = delete;
    WaitingShown& operator=(const WaitingShown&) = delete;

private:
    MainFrame& frame_;
};
