#include "support/frmProgress.h"

#include "platform/Fonts.h"
#include "resources/controls.h"

namespace {

// Design pixels.
constexpr int kWidth = 360;
constexpr int kMargin = 12;
constexpr int kBarHeight = 18;

constexpr UINT_PTR kPatienceTimer = 1;

FormDesign DesignFor(HWND owner) {
    return {L"frmProgress", L"TNT4SWX", kDialogStyle, WS_EX_DLGMODALFRAME, owner, {380, 140}, {}};
}

} // namespace

frmProgress::frmProgress(HWND owner, ErrorSink& errors, std::chrono::milliseconds patience)
    : FormOf(DesignFor(owner), errors), patience_(patience),
      lblInfo_(Add<Label>(At("lblInfo", IDC_lblInfo), LabelText::Plain)),
      prbMain_(Add<ProgressBar>(At("prbMain", IDC_prbMain))),
      cmdCancel_(Add<CommandButton>(At("cmdCancel", IDC_cmdCancel))) {
    cmdCancel_.SetText("Stop");
    cmdCancel_.onClick = [this] { OnCloseBox(); };
    frmProgress::OnLayout();
}

void frmProgress::ShowProgress(const std::string& label, std::int32_t minimum,
                               std::int32_t maximum) {
    if (events_ != nullptr)
        events_->ProgressLoading();
    lblInfo_.SetText(label);
    prbMain_.SetRange(minimum, maximum);
    OnLayout();
    due_ = std::chrono::steady_clock::now() + patience_;
    waiting_ = true;
    if (!cursor_)
        cursor_.emplace();
    // An operation that lets the window handle events is seen by the timer, any other by its steps.
    SetTimer(Handle(), kPatienceTimer, static_cast<UINT>(patience_.count()), nullptr);
    AppearWhenDue();
}

void frmProgress::AppearWhenDue() {
    if (waiting_ && std::chrono::steady_clock::now() >= due_)
        Appear();
}

void frmProgress::Appear() {
    waiting_ = false;
    KillTimer(Handle(), kPatienceTimer);
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
    prbMain_.SetValue(value);
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
    const SIZE button = cmdCancel_.IdealSize();
    int top = margin;
    const int line = LineHeight(Font());
    lblInfo_.Place({margin, top, right, top + line});
    top += line + margin / 2;
    prbMain_.Place({margin, top, right, top + Scale().FromDesign(kBarHeight)});
    top += Scale().FromDesign(kBarHeight) + margin;
    cmdCancel_.Place({right - button.cx, top, right, top + button.cy});
    ResizeClientArea(Handle(), {right + margin, top + button.cy + margin});
}
