#pragma once

#include "platform/controls/DesignComponent.h"
#include "platform/Handles.h"

#include <string>
#include <vector>

// The icons of the executable, in pixels; one that it does not hold is none (LoadImageW).
[[nodiscard]] IconHandle LoadProgramIcon(int size);                        // resource 1
[[nodiscard]] IconHandle LoadNamedIcon(const std::string& name, int size); // resource "ICON_<name>"

// A named image list of a form; the keys of its pictures are icon names.
class IconList : public DesignComponent {
public:
    IconList(std::string name, std::vector<std::string> keys);

    // Pixels.  A new handle when the size is new.  The old handle lives until the next change,
    // because several controls share the list and switch one after another.
    void Fit(int size);
    [[nodiscard]] HIMAGELIST Handle() const noexcept { return images_.Get(); }
    [[nodiscard]] int IndexOf(const std::string& key) const noexcept; // -1: there is none

private:
    std::vector<std::string> keys_;
    ImageListHandle images_;
    ImageListHandle before_;
    int size_ = 0;
};
