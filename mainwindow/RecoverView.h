#pragma once

#include "common/ports/FormWindow.h"
#include "common/ports/LocalizableForm.h"

#include <array>
#include <string>
#include <vector>

// A kept library as the window shows it: name, file, time, number of colors.
using RecoverRow = std::array<std::string, 4>;

// frmRecover as its rules see it.
class RecoverView : public FormWindow, public LocalizableForm {
public:
    [[nodiscard]] std::string Name() const override { return "frmRecover"; }

    virtual void SetWindowCaption(const std::string& caption) = 0;
    virtual void SetColumnCaptions(const RecoverRow& captions) = 0;
    // The row stays selected by its number, as far as there is one.
    virtual void SetRows(const std::vector<RecoverRow>& rows) = 0;

    // Shows the window modally over the main window, with the first row selected.  Gives the rows,
    // from 0, that are to be opened; none when the window was closed.
    [[nodiscard]] virtual std::vector<int> ShowModal() = 0;
};

// What the user did in frmRecover.
class RecoverEvents {
public:
    virtual ~RecoverEvents() = default;
    virtual void DeleteClicked(int row) = 0; // from 0
    virtual void EmptyClicked() = 0;
    virtual void RecoverUnloading() = 0;
};
