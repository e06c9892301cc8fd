#include "mainwindow/panes/MainArea.h"

#include "platform/Form.h"

void MainArea::Attach(LayoutEvents& events) {
    controls_.splitter.onPress = [&events] { events.SplitterPressed(); };
    controls_.splitter.onDrag = [this, &events](int x) {
        events.SplitterDragged(form_.Scale().ToTwips(x));
    };
    controls_.splitter.onRelease = [&events] { events.SplitterReleased(); };
}

LayoutMetrics MainArea::Metrics() const {
    const DpiScale& scale = form_.Scale();
    const RECT inner = form_.ClientArea();
    return {.state = form_.ShownState(),
            .formWidth = scale.ToTwips(VisibleWidth(form_.Handle())),
            .innerWidth = scale.ToTwips(WidthOf(inner)),
            .innerHeight = scale.ToTwips(HeightOf(inner)),
            .toolbarHeight = ShownHeight(controls_.toolbar),
            .statusBarHeight = ShownHeight(controls_.statusBar),
            .hugeFrameHeight = scale.ToTwips(controls_.editor.FrameHeight(WidthOf(inner))),
            .smallSwatchHeight = scale.ToTwips(controls_.editor.SmallSwatchHeight())};
}

float MainArea::ShownHeight(const Control& control) const {
    return control.IsShown() ? form_.Scale().ToTwips(HeightOf(control.Bounds())) : 0.0F;
}

void MainArea::ApplyLayout(const MainLayout& layout) {
    const DpiScale& scale = form_.Scale();
    Frame& frame = controls_.editor.FrameControl();
    Swatch& smallSwatch = controls_.editor.SmallSwatch();
    controls_.tree.Place(scale.ToPixels(layout.tree));
    controls_.splitter.Place(scale.ToPixels(layout.splitter));
    controls_.list.Place(scale.ToPixels(layout.list));
    frame.Place(scale.ToPixels(layout.frame));
    smallSwatch.Place(scale.ToPixels(layout.smallSwatch));
    // Nothing may be typed into a box that nobody sees.
    if (!layout.hugeFrameShown && IsChild(frame.Handle(), GetFocus()) != FALSE)
        SetFocus(controls_.list.Handle());
    if (layout.hugeFrameShown)
        controls_.editor.Arrange();
    frame.Show(layout.hugeFrameShown);
    smallSwatch.Show(!layout.hugeFrameShown);
}

void MainArea::ShowSplitterBar(const TwipsRect& bounds) {
    controls_.splitterBar.Place(form_.Scale().ToPixels(bounds));
    SetWindowPos(controls_.splitterBar.Handle(), HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void MainArea::HideSplitterBar() {
    controls_.splitterBar.Show(false);
}
