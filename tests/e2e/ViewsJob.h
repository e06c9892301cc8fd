#pragma once

#include "tests/e2e/Job.h"

#include <string>

// Shows the main window in all its views, in both languages and as large as the screen's resolution
// wants it, so that its pictures can be looked at.
class ViewsJob : public Job {
public:
    using Job::Job;

private:
    void Work() override;

    void Start();
    void ShowMode(int command, DWORD style);
    void ShowEditor(bool large);
    void SpeakGerman();
    void RestPointer();
    void SwitchColorsOn();
    void ShowColors(int command, DWORD style);
    [[nodiscard]] COLORREF FirstColorOfTip() const;
    void ShowTip();
    void PreviewMaterial();
    void PreviewGlass();
    [[nodiscard]] RemoteWindow Field() const;
    [[nodiscard]] POINT PointOfBall() const; // in the field

    COLORREF gold_ = CLR_INVALID; // as its row says
};
