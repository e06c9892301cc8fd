#pragma once

#include "common/TwipsSize.h"

#include <string>
#include <vector>

// frmTxtView as its rules see it.
class TextViewerView {
public:
    virtual ~TextViewerView() = default;

    // Fills cmbTxtView; nothing is selected afterwards.
    virtual void SetEntries(const std::vector<std::string>& entries) = 0;
    // By which cmbTxtView and rtbShowtext are announced.
    virtual void SetNames(const std::string& choice, const std::string& text) = 0;
    virtual void SelectEntry(int index) = 0;           // from 0; reports EntryChosen
    virtual void SetText(const std::string& text) = 0; // rtbShowtext, replacing what it showed
    virtual void SetBanner(int index) = 0;             // from 1; 0: none
    virtual void SetTopmost(bool onTop) = 0;
    virtual void ShowModeless() = 0;
};

// What the user did in frmTxtView.
class TextViewerEvents {
public:
    virtual ~TextViewerEvents() = default;
    virtual void EntryChosen(int index) = 0; // from 0
    virtual void BannerClicked() = 0;
    // The size of rtbShowtext for an inner area, asked while the window is in the normal state.
    [[nodiscard]] virtual TwipsSize TextSize(const TwipsSize& innerArea) const = 0;
};
