#pragma once

#include "common/ports/Prompts.h"
#include "platform/ColorDialog.h"
#include "platform/OwnerWindow.h"

// Message box, input box and the system's file and color dialogs.  Each is owned by the main
// window's active popup, so that it never opens behind another window of the program.
class Win32Prompts : public Prompts {
public:
    explicit Win32Prompts(OwnerWindow mainWindow) : mainWindow_(std::move(mainWindow)) {}

    // MessageBoxW with exactly the style, over its owner; a box that could not be shown counts as
    // cancelled.  A prompt that the screen has no room for is shown shortened.
    Answer ShowMessage(const std::string& prompt, int style, const std::string& title) override;

    std::string AskText(const std::string& prompt, const std::string& title,
                        const std::string& preset) override;
    std::optional<std::string> AskOpenFile(const FileDialogRequest& request) override;
    std::vector<std::string> AskOpenFiles(const FileDialogRequest& request) override;
    std::optional<std::string> AskSaveFile(const FileDialogRequest& request) override;
    std::optional<ColorNumber> AskColor(const std::string& title, ColorNumber initial) override;

private:
    OwnerWindow mainWindow_;
    ColorDialog colorDialog_;
};
