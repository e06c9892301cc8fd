#include "support/windows/frmTxtView.h"

#include "resources/controls.h"

namespace {

// Twips.  The text takes what the inner area leaves beside and above it.
constexpr float kTextLeft = 120;
constexpr float kTextTop = 505;
constexpr float kColumnWidth = 1540; // right of the text

// Design pixels.
constexpr int kMargin = 8;
constexpr int kComboWidth = 200;
constexpr int kComboHeight = 200; // with its list

FormDesign DesignFor(HWND owner) {
    return {L"frmTxtView",       L"TNT4SWX", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
            WS_EX_CONTROLPARENT, owner,      {680, 520},
            {340, 240}};
}

} // namespace

frmTxtView::frmTxtView(HWND owner, ErrorSink& errors, const BannerPictures& banners)
    : Form(DesignFor(owner), errors), banners_(banners),
      lblChoice_(Add<Label>(At("lblChoice", IDC_lblChoice))),
      cmbTxtView_(Add<ComboBox>(At("cmbTxtView", IDC_cmbTxtView))),
      lblText_(Add<Label>(At("lblText", IDC_lblText))),
      rtbShowtext_(Add<RichEdit>(At("rtbShowtext", IDC_rtbShowtext))),
      cmdOkay_(Add<CommandButton>(At("cmdOkay", IDC_cmdOkay), ButtonRole::Default)),
      picSponsor_(Add<PictureBox>(At("picSponsor", IDC_picSponsorTxtView))) {
    cmdOkay_.SetText("OK");
    picSponsor_.SetText("Banner"); // in every language
    cmdOkay_.onClick = [this] { OnCloseBox(); };
    SetDefaultButton(IDC_cmdOkay);
    CentreOnOwner(Handle());
    frmTxtView::OnLayout();
}

void frmTxtView::Attach(TextViewerEvents& events) {
    events_ = &events;
    cmbTxtView_.onChoose = [&events](int index) { events.EntryChosen(index); };
    picSponsor_.onClick = [&events] { events.BannerClicked(); };
    OnLayout();
}

void frmTxtView::SetEntries(const std::vector<std::string>& entries) {
    cmbTxtView_.Clear();
    for (const std::string& entry : entries)
        cmbTxtView_.Add(entry);
}

// The labels have no size: they name the controls behind them for programs that read the screen.
void frmTxtView::SetNames(const std::string& choice, const std::string& text) {
    lblChoice_.SetText(choice);
    lblText_.SetText(text);
}

void frmTxtView::SelectEntry(int index) {
    cmbTxtView_.SetListIndex(index);
    Raise(cmbTxtView_.onChoose, index);
}

void frmTxtView::SetText(const std::string& text) {
    rtbShowtext_.SetText(text);
}

void frmTxtView::SetBanner(int index) {
    picSponsor_.SetPicture(banners_.Picture(index), banners_.IsLink(index));
    picSponsor_.Show(picSponsor_.HasPicture());
}

// A window that is on the screen keeps its size, maximised or not; only a minimised one comes back.
void frmTxtView::ShowModeless() {
    if (IsWindowVisible(Handle()) == FALSE || ShownState() == WindowState::Minimised)
        Show();
    SetForegroundWindow(Handle());
    cmbTxtView_.Focus();
}

MessageResult frmTxtView::OnMessage(const WindowMessage& message) {
    if (message.id == WM_SIZE && events_ != nullptr) {
        OnLayout();
        return 0;
    }
    return Form::OnMessage(message);
}

void frmTxtView::OnLayout() {
    const int margin = Scale().FromDesign(kMargin);
    const RECT area = ClientArea();
    const int textTop = Scale().ToPixels(kTextTop);
    const int columnLeft = WidthOf(area) - margin - Scale().ToPixels(kColumnWidth);
    const int columnRight = WidthOf(area) - margin;
    const int button = cmdOkay_.IdealSize(columnRight - columnLeft).cy;
    cmbTxtView_.Place({margin, margin, margin + Scale().FromDesign(kComboWidth),
                       margin + Scale().FromDesign(kComboHeight)});
    cmdOkay_.Place({columnLeft, textTop, columnRight, textTop + button});
    const int bannerLeft = 2 * margin + Scale().FromDesign(kComboWidth);
    picSponsor_.Place({bannerLeft, margin / 2, columnRight, textTop - margin / 2});
    PlaceText();
}

// Only in the normal state, on purpose: a maximised window keeps the text as large as it was.
void frmTxtView::PlaceText() {
    if (events_ == nullptr || ShownState() != WindowState::Normal)
        return;
    const RECT area = ClientArea();
    const TwipsSize size =
        events_->TextSize({Scale().ToTwips(WidthOf(area)), Scale().ToTwips(HeightOf(area))});
    rtbShowtext_.Place(Scale().ToPixels(TwipsRect{kTextLeft, kTextTop, size.width, size.height}));
}
