#pragma once

#include "mainwindow/frmMain.h"
#include "resources/controls.h"
#include "tests/platform/PollUntil.h"
#include "tests/ui/RecordingErrorSink.h"
#include "tests/ui/RecordingMainEvents.h"

#include <gtest/gtest.h>

// The child window with a number, wherever it stands in the form; null: there is none.
[[nodiscard]] HWND FindChild(HWND form, int id);

[[nodiscard]] std::wstring ClassOf(HWND window);
[[nodiscard]] std::wstring TextOf(HWND window);

// What a user reads: an entry of a menu with its shortcut, and the tool tip of a toolbar button.
[[nodiscard]] std::string MenuText(HMENU menu, int command);
[[nodiscard]] std::string ButtonTip(HWND form, int command);

// Handles the messages that are waiting, as the program's loop does.
void PumpMessages();

// Handles messages until the condition holds; false when it does not within the time.
template <typename Condition>
[[nodiscard]] bool PumpUntil(Condition condition, std::chrono::milliseconds time = kPatience) {
    return PollUntil(
        [&] {
            PumpMessages();
            return condition();
        },
        time);
}

// Two clicks that are farther apart are no double click.
[[nodiscard]] inline std::chrono::milliseconds LongestDoubleClick() {
    return std::chrono::milliseconds(GetDoubleClickTime());
}

// A mouse click of the left button at a point of a window.
void Click(HWND window, POINT at);

// A real frmMain with recorded events and errors, laid out as the program lays it out.
class MainFormTest : public testing::Test {
protected:
    MainFormTest() { form.Attach(events.Events()); }
    ~MainFormTest() override { EXPECT_EQ(errors.reports, std::vector<std::string>{}); }

    [[nodiscard]] HWND Child(int id) const { return FindChild(form.Handle(), id); }
    [[nodiscard]] FormControl* Control(const std::string& name);

    RecordingErrorSink errors;
    BannerPictures banners;
    frmMain form{errors, banners};
    MainView view = form.View();
    RecordingMainEvents events{view.layout};
};
