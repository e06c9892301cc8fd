#pragma once

#include "tests/e2e/RemoteWindow.h"

// The dialogs that a window of another process shows.  Each of these waits for its dialog, works it
// and waits until it is gone; each throws std::runtime_error when it does not come or does not go.
namespace RemoteDialogs {

struct Message {
    std::string title;
    std::string text;
};

// Presses a button (IDYES, IDNO, IDOK, ...) of a message box.
Message AnswerMessageBox(const RemoteWindow& owner, int button);

// Enters a path in an open or save dialog and presses its default button.
void EnterFileName(const RemoteWindow& owner, const std::string& path);

struct Question {
    std::string prompt;
    std::string preset;
};

// Types the answer over the preset in an input box, and presses Enter.
Question AnswerInputBox(const RemoteWindow& owner, const std::string& answer);

} // namespace RemoteDialogs
