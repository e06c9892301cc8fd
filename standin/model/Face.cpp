#include "standin/model/Face.h"

#include "standin/model/EntityMembers.h"
#include "standin/model/PartDocument.h"

std::shared_ptr<PartDocument> Face::RequirePart() const {
    return std::static_pointer_cast<PartDocument>(RequireOwner());
}

std::shared_ptr<Face> Face::Next() const {
    return RequirePart()->FaceAt(index_ + 1);
}

std::shared_ptr<Feature> Face::OwnFeature() const {
    return featureIndex_ ? RequirePart()->FeatureAt(*featureIndex_) : nullptr;
}

const MemberTable<Face>& Face::Members() const {
    static const MemberTable<Face> members{
        EntityMembers::Select<Face>(),
        EntityMembers::MaterialPropertyValues<Face>(),
        {"GetFeature", 0,
         [](Face& face, const AutomationArray&) -> AutomationValue {
             return AutomationObjectPtr(face.OwnFeature());
         }},
        {"GetNextFace", 0,
         [](Face& face, const AutomationArray&) -> AutomationValue {
             return AutomationObjectPtr(face.Next());
         }},
    };
    return members;
}
