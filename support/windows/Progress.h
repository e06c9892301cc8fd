#pragma once

#include "common/Settings.h"
#include "common/ports/FormWindow.h"
#include "common/ports/LocalizableForm.h"
#include "support/windows/ProgressEvents.h"
#include "support/language/clsMultiLanguage.h"

// What happens in the progress window: it takes its texts and its place above other windows each
// time it is shown, and its Stop button sets the stop flag.
class Progress : public ProgressEvents {
public:
    Progress(FormWindow& window, LocalizableForm& form, clsMultiLanguage& language,
             const Settings& settings, bool& stopFlag)
        : window_(window), form_(form), language_(language), settings_(settings),
          stopFlag_(stopFlag) {}

    void ProgressLoading() override;
    void StopClicked() override;

private:
    FormWindow& window_;
    LocalizableForm& form_;
    clsMultiLanguage& language_;
    const Settings& settings_;
    bool& stopFlag_;
};
