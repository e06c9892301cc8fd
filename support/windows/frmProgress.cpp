#include "support/windows/frmProgress.h"

#include "platform/Fonts.h"
#include "resources/controls.h"

namespace {

// Design pixels.
constexpr int kWidth = 360;
constexpr int kMargin = 12;
constexpr int kBarHeight = 18;

FormDesign DesignFor(HWND owner) {
    return {L"frmProgress", L"TNT4SWX", kDialogStyle, WS_EX_DLGMODALFRAME, owner, {380, 140}, {}};
}

} // namespace

frmProgress::frmProgress(HWND owner, ErrorSink& errors)
    : FormOf(DesignFor(owner), errors),
      lblInfo_(Add<Label>(At("lblInfo", IDC_lblInfo), LabelText::Plain)),
      prbMain_(Add<ProgressBar>(At("prbMain", IDC_prbMain))),
      cmdCancel_(Add<CommandButton>(At("cmdCancel", IDC_cmdCancel))) {
    cmdCancel_.SetText("Stop");
    cmdCancel_.onClick = [this] { OnCloseBox(); };
    frmProgress::OnLayout();
}

void frmProgress::ShowProgress(const ProgressState& state) {
    if (!cursor_)
        cursor_.emplace();
    if (events_ != nullptr)
        events_->ProgressLoading();
    lblInfo_.SetText(state.label);
    prbMain_.SetRange(state.minimum, state.maximum);
    prbMain_.SetValue(state.value);
    OnLayout();
    if (IsWindowVisible(Handle()) == FALSE)
        CentreOnOwner(Handle());
    Show();
    RefreshProgress();
}

void frmProgress::SetProgress(std::int32_t value) {
    prbMain_.SetValue(value);
}

// UpdateWindow paints the window itself only; its parts are painted as well.
void frmProgress::RefreshProgress() {
    RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void frmProgress::HideProgress() {
    cursor_.reset();
    if (IsWindowVisible(Handle()) != FALSE)
        Hide();
}

// The window stays open: the operation that shows it closes it.
void frmProgress::OnCloseBox() {
    if (events_ != nullptr)
        events_->StopClicked();
}

void frmProgress::OnLayout() {
    const int margin = Scale().FromDesign(kMargin);
    const int right = Scale().FromDesign(kWidth) - margin;
    const SIZE button = cmdCancel_.IdealSize(right - margin);
    int top = margin;
    const int line = LineHeight(Font());
    lblInfo_.Place({margin, top, right, top + line});
    top += line + margin / 2;
    prbMain_.Place({margin, top, right, top + Scale().FromDesign(kBarHeight)});
    top += Scale().FromDesign(kBarHeight) + margin;
    cmdCancel_.Place({right - button.cx, top, right, top + button.cy});
    ResizeClientArea(Handle(), {right + margin, top + button.cy + margin});
}
