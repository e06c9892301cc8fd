#pragma once

#include "tests/e2e/RemoteWindow.h"

#include <vector>
#include <optional>

// The dialogs that a window of another process shows.  Each of these waits for its dialog, works it
// and waits until it is gone; each throws std::runtime_error when it does not come or does not go.
namespace RemoteDialogs {

struct Message {
    std::string title;
    std::string text;
};

// Waits for a message box and leaves it open.
Message ReadMessageBox(const RemoteWindow& owner);

// Presses a button (IDYES, IDNO, IDOK, ...) of a message box.
Message AnswerMessageBox(const RemoteWindow& owner, int button);

// An open or save dialog as it stands there: what it was preset to, and its kinds of files.
struct FileDialog {
    std::string title;
    std::string folder;
    std::string fileName; // without the folder
    std::vector<std::string> kinds;
};
FileDialog ReadFileDialog(const RemoteWindow& owner);

// Enters a path in an open or save dialog and presses its default button.
void EnterFileName(const RemoteWindow& owner, const std::string& path);

// As EnterFileName, for a path that makes the dialog itself ask or complain: presses a button of
// that message box.  The dialog stays where it was when the answer was not Yes.
Message EnterDoubtfulFileName(const RemoteWindow& owner, const std::string& path, int button);

void CancelFileDialog(const RemoteWindow& owner);

struct RedGreenBlue {
    int red;
    int green;
    int blue;
};

// Enters a color and presses OK, or Cancel without a color; gives the dialog's title.
std::string AnswerColorDialog(const RemoteWindow& owner, const std::optional<RedGreenBlue>& color);

// Gives an input box up, by Escape.
std::string CancelInputBox(const RemoteWindow& owner); // its prompt

struct Question {
    std::string prompt;
    std::string preset;
};

// Types the answer over the preset in an input box, and presses Enter.
Question AnswerInputBox(const RemoteWindow& owner, const std::string& answer);

} // namespace RemoteDialogs
