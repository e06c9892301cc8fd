#include "support/windows/About.h"

#include "common/ProgramNames.h"
#include "support/windows/MakerAddresses.h"
#include "support/settings/modWindowsHandling.h"

About::About(Parts parts) : parts_(std::move(parts)), position_(parts_.registry) {
    position_.SetRootKey(RegistryRoot::CurrentUser);
    position_.SetRegistryPath(ProgramNames::RegistryPath);
    position_.SetSubKey(ProgramNames::FormPositionsKey);
}

void About::ShowModal() {
    AboutView& view = parts_.window.Get();
    position_.SetForm(view);
    view.SetWindowCaption(std::string(ProgramNames::Title) + " - Info ");
    view.SetVersion("Version " + parts_.version);
    view.SetTitle(ProgramNames::Title);
    parts_.language.SetAllControlText(view);
    view.SetBanner(parts_.banner.Index()); // the window has its size from here on
    position_.CenterForm();
    SetFormOnTop(view, parts_.settings.alwaysOnTop);
    view.ShowModal();
}

// Stored although it is never restored: the window always opens centred.
void About::AboutUnloading() {
    position_.SaveForm();
}

void About::SystemInfoClicked() {
    parts_.systemInformation.Show();
}

void About::HomepageClicked() {
    parts_.links.OpenURL(MakerAddresses::HomePage);
}

void About::MailClicked() {
    // Fixed German texts; the grammar of the body is kept as it is.
    parts_.links.SendMail(MakerAddresses::SupportMail, "TNT4SWX Mail",
                          "Ich möchte gerne einen Kommentar zu TNT4SWX abgegeben ...");
}

void About::BannerClicked() {
    parts_.banner.BannerClicked();
}
