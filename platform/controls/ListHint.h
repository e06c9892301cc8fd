#pragma once

#include "platform/controls/Label.h"
#include "platform/Handles.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

// Lines of text and links in the middle of a list that has no rows.  The arrow keys go from one
// link to the next, as they go from row to row where there are rows.
class ListHint {
public:
    struct Line {
        std::string text;
        bool isLink = false;

        bool operator==(const Line&) const = default;
    };

    // list: in whose client area it stands.  Both outlive it.
    ListHint(ControlHost& host, Control& list);
    ListHint(const ListHint&) = delete;
    ListHint& operator=(const ListHint&) = delete;
    ~ListHint();

    // The first line is the title.  None: nothing is shown.  False: these are the ones that are
    // shown.
    bool Show(const std::vector<Line>& lines);

    // Puts the lines into the middle of an area, in pixels of the list.  What has no room, from the
    // last line on, is left out.
    void Arrange(const RECT& area);
    void ApplyScale();

    // The list's messages that are the hint's: of its labels, and the arrow keys.
    MessageResult OnMessage(const WindowMessage& message);

    [[nodiscard]] bool IsShown() const noexcept { return !lines_.empty(); }
    [[nodiscard]] bool IsLabel(HWND window) const noexcept; // one of its lines

    std::function<void(int line)> onLink; // from 0; it was clicked

private:
    class Link;
    struct Labels;

    void MakeLabels();
    void MakeLink(std::size_t index);
    [[nodiscard]] ControlPlace PlaceOf(std::size_t line) const noexcept;
    [[nodiscard]] Label& LabelOf(std::size_t line) const;
    [[nodiscard]] SIZE SizeOf(std::size_t line, int width) const;
    [[nodiscard]] int Gap(std::size_t line) const noexcept;
    void Clicked(HWND label, WPARAM code);
    MessageResult ColorsOf(HWND label, HDC device) const;
    bool FocusLink(std::ptrdiff_t line, int step);
    void LeaveList() const;
    void GiveFocusBack() const;
    [[nodiscard]] std::string FocusedLink() const;
    void FocusLinkNamed(const std::string& text);

    ControlHost& host_;
    Control& list_;
    FontHandle titleFont_;
    std::vector<Line> lines_;
    std::vector<std::unique_ptr<Labels>> labels_; // of each line that was ever shown
};
