#include "standin/model/Body.h"

#include "standin/model/EntityMembers.h"
#include "standin/model/PartDocument.h"

void Body::SetColor(const MaterialOverride& color) {
    color_ = color;
    session_->events.Changed();
}

const MemberTable<Body>& Body::Members() const {
    static const MemberTable<Body> members{
        EntityMembers::MaterialPropertyValues<Body>(),
        {"GetFaceCount", 0,
         [](Body& body, const AutomationArray&) -> AutomationValue {
             return static_cast<std::int32_t>(RequireOpen(body.owner_)->Faces().size());
         }},
        {"GetFirstFace", 0,
         [](Body& body, const AutomationArray&) -> AutomationValue {
             return AutomationObjectPtr(RequireOpen(body.owner_)->FaceAt(0));
         }},
    };
    return members;
}
