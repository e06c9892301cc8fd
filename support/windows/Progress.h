#pragma once

#include "common/Settings.h"
#include "support/language/clsMultiLanguage.h"
#include "support/windows/OnDemand.h"
#include "support/windows/ProgressEvents.h"
#include "support/windows/ProgressForm.h"

// What happens in the progress window: it takes its texts and its place above other windows each
// time it is shown, and its Stop button sets the stop flag.
class Progress : public ProgressEvents {
public:
    Progress(OnDemand<ProgressForm>& window, clsMultiLanguage& language, const Settings& settings,
             bool& stopFlag)
        : window_(window), language_(language), settings_(settings), stopFlag_(stopFlag) {}

    void ProgressLoading() override;
    void StopClicked() override;

private:
    OnDemand<ProgressForm>& window_;
    clsMultiLanguage& language_;
    const Settings& settings_;
    bool& stopFlag_;
};
