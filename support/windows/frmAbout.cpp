#include "support/windows/frmAbout.h"

#include "platform/Fonts.h"
#include "platform/ModalDisplay.h"
#include "platform/Utf16.h"
#include "resources/controls.h"

#include <algorithm>

namespace {

// Design pixels.
constexpr int kWidth = 420;
constexpr int kMargin = 16;
constexpr int kGap = 8;
constexpr int kIconSize = 48;
constexpr int kBannerHeight = 60;

FormDesign DesignFor(HWND owner) {
    return {L"frmAbout", L"TNT4SWX", kDialogStyle, WS_EX_DLGMODALFRAME, owner, {440, 360}, {}};
}

} // namespace

frmAbout::frmAbout(HWND owner, ErrorSink& errors, const BannerPictures& banners)
    : FormOf(DesignFor(owner), errors), banners_(banners),
      picIcon_(Add<IconBox>(At("picIcon", IDC_picIcon), kIconSize)),
      lblTitle_(Add<Label>(At("lblTitle", IDC_lblTitle), LabelText::Plain)),
      lblVersion_(Add<Label>(At("lblVersion", IDC_lblVersion), LabelText::Plain)),
      lblDescription_(Add<Label>(At("lblDescription", IDC_lblDescription))),
      lblDisclaimer_(Add<Label>(At("lblDisclaimer", IDC_lblDisclaimer))),
      lblLinkHomepage_(Add<LinkLabel>(At("lblLinkHomepage", IDC_lblLinkHomepage))),
      lblMail_(Add<LinkLabel>(At("lblMail", IDC_lblMail))),
      picSponsor_(Add<PictureBox>(At("picSponsor", IDC_picSponsorAbout))),
      cmdSysInfo_(Add<CommandButton>(At("cmdSysInfo", IDC_cmdSysInfo))),
      cmdOK_(Add<CommandButton>(At("cmdOK", IDC_cmdOK), ButtonRole::Default)) {
    lblDescription_.SetText("Verwaltet Bibliotheken von Oberflächenfarben und tauscht Farben mit "
                            "SolidWorks-Modellen aus.");
    lblDisclaimer_.SetText("Dieses Programm wird ohne jede Gewähr bereitgestellt.");
    lblLinkHomepage_.SetText("Startseite im Web");
    lblMail_.SetText("E-Mail an den Support");
    cmdSysInfo_.SetText("Systeminfo ...");
    cmdOK_.SetText("OK");
    picSponsor_.SetText("Banner"); // in every language
    cmdOK_.onClick = [this] { done_ = true; };
    SetDefaultButton(IDC_cmdOK);
    frmAbout::OnScaleChanged();
    frmAbout::OnLayout();
}

void frmAbout::Attach(AboutEvents& events) {
    events_ = &events;
    cmdSysInfo_.onClick = [&events] { events.SystemInfoClicked(); };
    lblLinkHomepage_.onClick = [&events] { events.HomepageClicked(); };
    lblMail_.onClick = [&events] { events.MailClicked(); };
    picSponsor_.onClick = [&events] { events.BannerClicked(); };
}

void frmAbout::SetWindowCaption(const std::string& caption) {
    SetWindowTextW(Handle(), ToUtf16(caption).c_str());
}

void frmAbout::SetTitle(const std::string& title) {
    lblTitle_.SetText(title);
}

void frmAbout::SetVersion(const std::string& version) {
    lblVersion_.SetText(version);
}

void frmAbout::SetBanner(int index) {
    picSponsor_.SetPicture(banners_.Picture(index), banners_.IsLink(index));
    picSponsor_.Show(picSponsor_.HasPicture());
    OnLayout();
}

void frmAbout::ShowModal() {
    OnLayout();
    done_ = false;
    const ModalDisplay display(Handle());
    cmdOK_.Focus();
    ModalDisplay::Run([this] { return done_; });
    if (events_ != nullptr)
        events_->AboutUnloading();
}

void frmAbout::OnScaleChanged() {
    FontHandle font = EnlargedFont(Font(), 150, true);
    lblTitle_.SetFont(font.Get());
    titleFont_ = std::move(font);
}

void frmAbout::OnLayout() {
    const int margin = Scale().FromDesign(kMargin);
    const int icon = Scale().FromDesign(kIconSize);
    picIcon_.Place({margin, margin, margin + icon, margin + icon});
    Line line{2 * margin + icon, Scale().FromDesign(kWidth) - margin, margin};
    PlaceText(lblTitle_, line, kGap / 2);
    PlaceText(lblVersion_, line, 2 * kGap);
    PlaceText(lblDescription_, line, kGap);
    PlaceText(lblDisclaimer_, line, 2 * kGap);
    PlaceText(lblLinkHomepage_, line, kGap / 2);
    PlaceText(lblMail_, line, 2 * kGap);
    line.left = margin;
    PlaceBanner(line);
    PlaceButtons(line);
    ResizeClientArea(Handle(), {line.right + margin, line.top + margin});
}

void frmAbout::PlaceText(Label& label, Line& line, int gap) {
    const SIZE size = label.TextSize(line.right - line.left);
    // As wide as its text: only the words of a link are to be clicked.
    label.Place({line.left, line.top, line.left + size.cx, line.top + size.cy});
    line.top += size.cy + Scale().FromDesign(gap);
}

void frmAbout::PlaceBanner(Line& line) {
    if (!picSponsor_.HasPicture())
        return;
    const int bottom = line.top + Scale().FromDesign(kBannerHeight);
    picSponsor_.Place({line.left, line.top, line.right, bottom});
    line.top = bottom + Scale().FromDesign(2 * kGap);
}

void frmAbout::PlaceButtons(Line& line) {
    const int gap = Scale().FromDesign(kGap);
    const int widest = (line.right - line.left - gap) / 2;
    const SIZE info = cmdSysInfo_.IdealSize(widest);
    const SIZE ok = cmdOK_.IdealSize(widest);
    const int bottom = line.top + std::max(info.cy, ok.cy);
    cmdOK_.Place({line.right - ok.cx, line.top, line.right, bottom});
    const int infoRight = line.right - ok.cx - gap;
    cmdSysInfo_.Place({infoRight - info.cx, line.top, infoRight, bottom});
    line.top = bottom;
}
