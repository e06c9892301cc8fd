#pragma once

#include <optional>
#include <string>
#include <windows.h>

// The text box in which a tree or list edits a label.  Those controls cut a label that is longer
// than 259 characters, and not each of them tells an emptied label from an edit that was given up.
class LabelEdit {
public:
    LabelEdit() = default;
    LabelEdit(const LabelEdit&) = delete;
    LabelEdit& operator=(const LabelEdit&) = delete;
    ~LabelEdit();

    // The box has just been made.  text: the whole label.
    void Begin(HWND box, const std::string& text);
    // The edit ends without a new label, whatever the box holds.
    void GiveUp() noexcept { isOpen_ = false; }

    // The platform told the end of an edit: the text of the box.  Nothing when the edit was given
    // up or its box has gone, and when the same end is told again.
    [[nodiscard]] std::optional<std::string> End();

private:
    static LRESULT CALLBACK Watch(HWND box, UINT message, WPARAM wParam, LPARAM lParam,
                                  UINT_PTR subclass, DWORD_PTR reference) noexcept;

    HWND box_ = nullptr;
    bool isOpen_ = false;
};
