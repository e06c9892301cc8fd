#pragma once

#include "common/ColorNumber.h"

#include <optional>
#include <string>
#include <vector>

// Message-box styles: buttons, icon and default button added up, as the platform counts them.
namespace MessageStyle {
inline constexpr int Plain = 0;
inline constexpr int Critical = 16;
inline constexpr int YesNoQuestion = 36;
inline constexpr int Exclamation = 48;
inline constexpr int ExclamationOkCancel = 49;
inline constexpr int Information = 64;
inline constexpr int InformationOkCancel = 65;
inline constexpr int ConfirmDelete = 289; // OK and Cancel, question icon, Cancel is the default
} // namespace MessageStyle

enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

// File-dialog flags, as the platform counts them.
namespace FileDialogFlags {
inline constexpr unsigned Open = 0x1800;   // file must exist, path must exist
inline constexpr unsigned Read = 0x1804;   // Open for files that are only read: hide read-only
inline constexpr unsigned SaveAs = 0x8806; // overwrite prompt, hide read-only, path must exist,
                                           // no read-only return
} // namespace FileDialogFlags

struct FileDialogRequest {
    std::string title;
    std::string filter;   // description and pattern pairs, separated by "|"
    std::string fileName; // preset, may be empty
    unsigned flags = 0;   // FileDialogFlags
};

// Everything that asks or tells the user something in a window of its own.  Texts are UTF-8.
class Prompts {
public:
    virtual ~Prompts() = default;

    virtual Answer ShowMessage(const std::string& prompt, int style, const std::string& title) = 0;

    // The text typed by the user; empty when the user cancels.
    virtual std::string AskText(const std::string& prompt, const std::string& title,
                                const std::string& preset) = 0;

    // The full path chosen by the user; nothing when the user cancels.
    virtual std::optional<std::string> AskOpenFile(const FileDialogRequest& request) = 0;
    // Any number of files; none when the user cancels.
    virtual std::vector<std::string> AskOpenFiles(const FileDialogRequest& request) = 0;
    virtual std::optional<std::string> AskSaveFile(const FileDialogRequest& request) = 0;

    // The color chosen by the user in the fully opened color dialog; nothing when the user
    // cancels.
    virtual std::optional<ColorNumber> AskColor(const std::string& title, ColorNumber initial) = 0;
};
