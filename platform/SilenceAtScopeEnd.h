#pragma once

#include "platform/Form.h"

// Ends a form's reports when the scope ends, before what it reports to is gone.
class SilenceAtScopeEnd {
public:
    explicit SilenceAtScopeEnd(Form& form) : form_(form) {}
    SilenceAtScopeEnd(const SilenceAtScopeEnd&) = delete;
    SilenceAtScopeEnd& operator=(const SilenceAtScopeEnd&) = delete;
    ~SilenceAtScopeEnd() { form_.StopReporting(); }

private:
    Form& form_;
};
