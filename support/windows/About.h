#pragma once

#include "common/Settings.h"
#include "support/windows/AboutView.h"
#include "support/windows/Banner.h"
#include "support/windows/OnDemand.h"
#include "support/settings/CFormPos.h"
#include "support/windows/SystemInformation.h"
#include "support/language/clsMultiLanguage.h"
#include "support/windows/modinternet.h"

#include <string>

// The About window.
class About : public AboutEvents {
public:
    struct Parts {
        OnDemand<AboutView>& window;
        clsMultiLanguage& language;
        const Settings& settings;
        const modRegistry& registry;
        const modinternet& links;
        SystemInformation& systemInformation;
        Banner& banner;
        std::string version; // major, minor and revision joined by "."
    };

    explicit About(Parts parts);

    // Loads the window and shows it modally, always centred.
    void ShowModal();

    void AboutUnloading() override;
    void SystemInfoClicked() override;
    void HomepageClicked() override;
    void MailClicked() override;
    void BannerClicked() override;

private:
    Parts parts_;
    CFormPos position_;
};
