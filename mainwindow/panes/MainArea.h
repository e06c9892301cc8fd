#pragma once

#include "mainwindow/LayoutPane.h"
#include "mainwindow/panes/MainEditor.h"
#include "platform/controls/ListView.h"
#include "platform/controls/Splitter.h"
#include "platform/controls/StatusBar.h"
#include "platform/controls/Swatch.h"
#include "platform/controls/Toolbar.h"
#include "platform/controls/TreeView.h"

class Form;

// The area of frmMain that the layout pass shares out.
class MainArea : public LayoutPane {
public:
    struct Controls {
        const Toolbar& toolbar;
        TreeView& tree;
        Splitter& splitter;
        ListView& list;
        MainEditor& editor;
        const StatusBar& statusBar;
        SolidBar& splitterBar; // shown while the splitter is dragged
    };

    MainArea(const Form& form, const Controls& controls) : form_(form), controls_(controls) {}

    void Attach(LayoutEvents& events);

    [[nodiscard]] LayoutMetrics Metrics() const override;
    void ApplyLayout(const MainLayout& layout) override;
    void ShowSplitterBar(const TwipsRect& bounds) override;
    void HideSplitterBar() override;

private:
    [[nodiscard]] float ShownHeight(const Control& control) const; // twips

    const Form& form_;
    Controls controls_;
};
