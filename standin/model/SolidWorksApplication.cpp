#include "standin/model/SolidWorksApplication.h"

#include "standin/model/Document.h"

const MemberTable<SolidWorksApplication>& SolidWorksApplication::Members() const {
    static const MemberTable<SolidWorksApplication> members{
        {"ActiveDoc", 0,
         [](SolidWorksApplication& application, const AutomationArray&) -> AutomationValue {
             return AutomationObjectPtr(application.session_->activeDocument.lock());
         }},
        {"RevisionNumber", 0,
         [](SolidWorksApplication& application, const AutomationArray&) -> AutomationValue {
             return application.session_->revision;
         }},
        {"Visible", 0,
         [](SolidWorksApplication& application, const AutomationArray&) -> AutomationValue {
             return application.session_->isVisible;
         }},
    };
    return members;
}
