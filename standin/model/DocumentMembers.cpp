#include "standin/model/Document.h"

#include "common/ColorNumber.h"
#include "standin/model/Component.h"
#include "standin/model/Configuration.h"
#include "standin/model/EntityMembers.h"
#include "standin/model/PartDocument.h"

#include <utility>

// The automation members of documents.
struct DocumentMembers {
    using Arguments = AutomationArray;
    using Table = MemberTable<Document>;

    static const Table& OfDrawings();
    static const Table& OfAssemblies();
    static const Table& OfParts();

    static AutomationValue SelectedFaceProperties(Document& document, const Arguments& arguments);
    static AutomationValue SelectedFeatureProperties(Document& document,
                                                     const Arguments& arguments);
};

namespace {

// color, ambient, diffuse, specular, shininess, transparency, emission, use-part-properties: the
// first eight arguments of both calls.  With use-part-properties the color is taken off.
MaterialOverride ReadProperties(const AutomationArray& arguments) {
    const RedGreenBlue color = SplitColorNumber(static_cast<ColorNumber>(arguments[0].AsInt32()));
    MaterialValues values{color.red / 255.0, color.green / 255.0, color.blue / 255.0};
    for (std::size_t i = 1; i <= 6; ++i)
        values[i + 2] = arguments[i].AsDouble();
    return arguments[7].AsBoolean() ? std::nullopt : MaterialOverride(values);
}

// Colors every selected entity of the kind; an empty name leaves the names alone.
std::vector<EntityPtr> ApplyToSelection(const Document& document, EntityKind kind,
                                        const MaterialOverride& color, const std::string& name) {
    std::vector<EntityPtr> changed;
    for (const SelectedItem& item : document.CurrentSelection().Items())
        if (item.entity->Kind() == kind)
            changed.push_back(item.entity);
    for (const EntityPtr& entity : changed) {
        entity->SetColor(color);
        if (!name.empty())
            entity->Rename(name);
    }
    return changed;
}

} // namespace

AutomationValue DocumentMembers::SelectedFaceProperties(Document& document,
                                                        const Arguments& arguments) {
    const MaterialOverride color = ReadProperties(arguments);
    const std::string name = arguments[8].AsString();
    return !ApplyToSelection(document, EntityKind::Face, color, name).empty();
}

AutomationValue DocumentMembers::SelectedFeatureProperties(Document& document,
                                                           const Arguments& arguments) {
    const MaterialOverride color = ReadProperties(arguments);
    const bool suppressed = arguments[8].AsBoolean();
    const std::string name = arguments[9].AsString();
    const auto changed = ApplyToSelection(document, EntityKind::BodyFeature, color, name);
    for (const EntityPtr& entity : changed)
        static_cast<Feature&>(*entity).SetSuppressed(suppressed);
    return !changed.empty();
}

const MemberTable<Document>& DocumentMembers::OfDrawings() {
    static const Table members{
        {"GetType", 0,
         [](Document& document, const Arguments&) -> AutomationValue {
             return static_cast<std::int32_t>(document.Type());
         }},
        {"GetTitle", 0,
         [](Document& document, const Arguments&) -> AutomationValue { return document.Title(); }},
        {"GetPathName", 0,
         [](Document& document, const Arguments&) -> AutomationValue { return document.Path(); }},
        {"SelectionManager", 0,
         [](Document& document, const Arguments&) -> AutomationValue {
             return AutomationObjectPtr(document.selectionManager_);
         }},
        {"ClearSelection", 0,
         [](Document& document, const Arguments&) -> AutomationValue {
             document.ClearSelection();
             return {};
         }},
        {"GetColorTable", 0,
         [](Document& document, const Arguments&) -> AutomationValue {
             return AutomationObjectPtr(document.colorTable_);
         }},
        {"EditRebuild", 0,
         [](Document& document, const Arguments&) -> AutomationValue {
             ++document.rebuildCount_;
             return {};
         }},
    };
    return members;
}

const MemberTable<Document>& DocumentMembers::OfAssemblies() {
    static const Table members{OfDrawings(),
                               {
                                   EntityMembers::MaterialPropertyValues<Document>(),
                                   {"FirstFeature", 0,
                                    [](Document& document, const Arguments&) -> AutomationValue {
                                        return AutomationObjectPtr(document.ChainAt(0));
                                    }},
                                   {"GetFeatureCount", 0,
                                    [](Document& document, const Arguments&) -> AutomationValue {
                                        return static_cast<std::int32_t>(document.Chain().size());
                                    }},
                                   {"GetActiveConfiguration", 0,
                                    [](Document& document, const Arguments&) -> AutomationValue {
                                        return AutomationObjectPtr(document.ActiveConfiguration());
                                    }},
                                   {"SelectedFaceProperties", 9, SelectedFaceProperties},
                                   {"SelectedFeatureProperties", 10, SelectedFeatureProperties},
                               }};
    return members;
}

const MemberTable<Document>& DocumentMembers::OfParts() {
    static const Table members{
        OfAssemblies(),
        {{"Body", 0, [](Document& document, const Arguments&) -> AutomationValue {
              return AutomationObjectPtr(static_cast<PartDocument&>(document).Solid());
          }}}};
    return members;
}

const MemberTable<Document>& Document::Members() const {
    switch (type_) {
    case DocumentType::Part:
        return DocumentMembers::OfParts();
    case DocumentType::Assembly:
        return DocumentMembers::OfAssemblies();
    case DocumentType::Drawing:
        break;
    }
    return DocumentMembers::OfDrawings();
}
