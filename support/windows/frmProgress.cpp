#include "support/windows/frmProgress.h"

#include "platform/Fonts.h"
#include "resources/controls.h"

namespace {

// Design pixels.
constexpr int kWidth = 360;
constexpr int kMargin = 12;
constexpr int kBarHeight = 18;

constexpr UINT_PTR kPatienceTimer = 1;
constexpr UINT kPatienceTick = 50; // milliseconds
constexpr unsigned kFewSteps = 64;

FormDesign DesignFor(HWND owner) {
    return {L"frmProgress", L"TNT4SWX", kDialogStyle, WS_EX_DLGMODALFRAME, owner, {380, 140}, {}};
}

} // namespace

frmProgress::frmProgress(HWND owner, ErrorSink& errors, const WaitingClock& clock,
                         std::chrono::milliseconds patience)
    : FormOf(DesignFor(owner), errors), clock_(clock), patience_(patience),
      lblInfo_(Add<Label>(At("lblInfo", IDC_lblInfo), LabelText::Plain)),
      prbMain_(Add<ProgressBar>(At("prbMain", IDC_prbMain))),
      cmdCancel_(Add<CommandButton>(At("cmdCancel", IDC_cmdCancel))) {
    cmdCancel_.SetText("Stop");
    cmdCancel_.onClick = [this] { OnCloseBox(); };
    frmProgress::OnLayout();
}

// Nothing is done for a window that may never appear: most operations are over at once.
void frmProgress::ShowProgress(const std::string& label, std::int32_t minimum,
                               std::int32_t maximum) {
    label_ = label;
    minimum_ = minimum;
    maximum_ = maximum;
    value_ = minimum;
    due_ = clock_.Now() + patience_;
    waiting_ = true;
    steps_ = 0;
    // An operation that lets the window handle events is seen by the timer, any other by its steps.
    SetTimer(Handle(), kPatienceTimer, kPatienceTick, nullptr);
    if (IsWindowVisible(Handle()) != FALSE)
        Appear();
    else
        AppearWhenDue();
}

void frmProgress::AppearWhenDue() {
    if (waiting_ && clock_.Now() >= due_)
        Appear();
}

void frmProgress::Appear() {
    waiting_ = false;
    KillTimer(Handle(), kPatienceTimer);
    if (!cursor_)
        cursor_.emplace();
    if (events_ != nullptr)
        events_->ProgressLoading();
    lblInfo_.SetText(label_);
    prbMain_.SetRange(minimum_, maximum_);
    prbMain_.SetValue(value_);
    OnLayout();
    if (IsWindowVisible(Handle()) == FALSE)
        CentreOnOwner(Handle());
    Show();
    RefreshProgress();
}

MessageResult frmProgress::OnMessage(const WindowMessage& message) {
    if (message.id != WM_TIMER)
        return Form::OnMessage(message);
    AppearWhenDue();
    return 0;
}

void frmProgress::SetProgress(std::int32_t value) {
    value_ = value;
    if (!waiting_)
        prbMain_.SetValue(value);
    else if (++steps_ < kFewSteps || steps_ % kFewSteps == 0) // many steps are short ones
        AppearWhenDue();
}

// UpdateWindow paints the window itself only; its parts are painted as well.
void frmProgress::RefreshProgress() {
    RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void frmProgress::HideProgress() {
    waiting_ = false;
    cursor_.reset();
    KillTimer(Handle(), kPatienceTimer);
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
