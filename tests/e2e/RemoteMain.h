#pragma once

#include "tests/e2e/RemoteList.h"
#include "tests/e2e/RemoteToolbar.h"
#include "tests/e2e/RemoteTree.h"

#include <cstddef>
#include <string>
#include <vector>

// The program's main window, worked from outside.
class RemoteMain {
public:
    // programFolder: where the language file is, for the access keys of the menus.
    RemoteMain(RemoteWindow window, std::string programFolder)
        : window_(window), programFolder_(std::move(programFolder)) {}

    [[nodiscard]] const RemoteWindow& Window() const noexcept { return window_; }
    [[nodiscard]] RemoteTree Tree() const;
    [[nodiscard]] RemoteList List() const;
    [[nodiscard]] RemoteToolbar Toolbar() const;
    [[nodiscard]] RemoteWindow Control(int id) const { return window_.Child(id); }
    void ClickButton(int command) const; // toolbar

    // By keyboard, with the access keys of menu and entry ("mnuFile", "mnuFileSave").
    void ChooseFromMenu(const std::string& menu, const std::string& entry) const;

    static constexpr std::size_t kValues = 9;
    [[nodiscard]] std::vector<std::string> ValueTexts() const;
    [[nodiscard]] std::vector<std::string> SliderPositions() const;
    [[nodiscard]] std::string ColorName() const;
    [[nodiscard]] std::string SwatchCaption() const;
    [[nodiscard]] bool IsLargeEditorShown() const;
    // The large one, or the small one while the large one is not shown.
    [[nodiscard]] RemoteWindow Swatch() const;
    [[nodiscard]] std::string InfoText() const; // status bar
    void ClearInfoText() const;                 // so that the next text is known to be a new one

    void TypeValue(std::size_t index, const std::string& digits) const;
    void DragSlider(std::size_t index, int pixels) const;

    [[nodiscard]] RemoteWindow ValueBox(std::size_t index) const;
    [[nodiscard]] RemoteWindow Slider(std::size_t index) const;

private:
    [[nodiscard]] bool OpenMenu(WORD accessKey) const; // false: it does not open
    [[nodiscard]] WORD AccessKey(const std::string& menuName) const;

    RemoteWindow window_;
    std::string programFolder_;
};
