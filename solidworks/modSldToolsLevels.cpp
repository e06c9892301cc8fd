#include "common/Text.h"
#include "solidworks/ColorArray.h"
#include "solidworks/ColorSources.h"
#include "solidworks/ResultKey.h"
#include "solidworks/SelectedProperties.h"
#include "solidworks/SolidWorksSession.h"
#include "solidworks/modSldTools.h"

#include <optional>
#include <utility>

// Which color is seen: what each level of the selection carries, and taking one of them off.

namespace {

std::optional<ColorValueArray> ColorOf(AutomationObject* object, const char* member) {
    if (object == nullptr)
        return {};
    const AutomationAnswer array = ColorSources::Probe([&] { return object->Get(member); });
    return ColorArray::IsUsable(array) ? std::optional(ColorSources::Values(array)) : std::nullopt;
}

void Add(LevelColors& colors, LevelKind kind, AutomationObject* object,
         const char* member = ColorSources::kValues) {
    const LevelColor level{.kind = kind, .values = ColorOf(object, member)};
    colors.levels.push_back(level);
}

void AddDocument(LevelColors& colors, AutomationObject& document, bool isAssembly) {
    if (isAssembly) {
        Add(colors, LevelKind::Assembly, &document);
        return;
    }
    Add(colors, LevelKind::Body, ColorSources::ProbeObject(document, "Body").get());
    Add(colors, LevelKind::Part, &document);
}

void AddModel(LevelColors& colors, AutomationObject& component) {
    const AutomationObjectPtr model = ColorSources::ProbeObject(component, "GetModelDoc");
    colors.isModelMissing = model == nullptr;
    if (model)
        AddDocument(colors, *model, model->Get("GetType").AsInt32() == DocumentType::Assembly);
}

// The active document's first selected object, with the objects that carry its levels, for the
// length of one operation.
class SelectedLevels {
public:
    explicit SelectedLevels(AutomationService& service) : session_(service) {}

    // Gives the result key of what is missing, or nothing when the levels can be read.
    [[nodiscard]] std::string Take();

    [[nodiscard]] LevelColors Read() const;

    // kind: one that can be cleared.  False when this revision of SolidWorks cannot.
    [[nodiscard]] bool Clear(LevelKind kind) const;

private:
    std::string TakeFirst();
    void ClearFace() const;
    void ClearFeature() const;
    [[nodiscard]] std::vector<AutomationObjectPtr> AllSelected() const;
    void Rebuild() const { session_.Document().Invoke("EditRebuild", {}); }
    [[nodiscard]] bool IsType(std::int32_t type) const noexcept { return object_ && type_ == type; }

    SolidWorksSession session_;
    std::optional<SolidWorksSelection> selection_;
    std::int32_t count_ = 0;
    AutomationObjectPtr object_; // null: the document itself
    std::int32_t type_ = 0;
    AutomationObjectPtr component_;
    AutomationObjectPtr feature_;
};

std::string SelectedLevels::Take() {
    if (std::string refusal = session_.TakeDocument(DocumentDemand::PartOrAssembly);
        !refusal.empty())
        return refusal;
    selection_.emplace(session_.Document());
    count_ = selection_->Count();
    return count_ > 0 ? TakeFirst() : std::string();
}

std::string SelectedLevels::TakeFirst() {
    object_ = selection_->ObjectAt(1);
    type_ = selection_->TypeAt(1);
    if (!SelectionType::CarriesColor(type_))
        return kLineBreak + (ResultKey::NoValidSelection + std::to_string(type_));
    if (IsType(SelectionType::Component))
        component_ = object_;
    else if (object_ && session_.IsAssembly())
        component_ = selection_->ComponentAt(1);
    if (IsType(SelectionType::Face))
        feature_ = ColorSources::ProbeObject(*object_, "GetFeature");
    else if (IsType(SelectionType::BodyFeature))
        feature_ = object_;
    return {};
}

LevelColors SelectedLevels::Read() const {
    LevelColors colors;
    if (component_)
        Add(colors, LevelKind::Component, component_.get());
    if (IsType(SelectionType::Face))
        Add(colors, LevelKind::Face, object_.get());
    if (IsType(SelectionType::Face) || IsType(SelectionType::BodyFeature))
        Add(colors, LevelKind::Feature, feature_.get(), ColorSources::kValuesOfFeature);
    if (component_)
        AddModel(colors, *component_);
    else
        AddDocument(colors, session_.Document(), session_.IsAssembly());
    return colors;
}

bool SelectedLevels::Clear(LevelKind kind) const {
    if (kind == LevelKind::Component) {
        if (!session_.HasRequiredRevision())
            return false;
        component_->Invoke("RemoveMaterialProperty", {});
        Rebuild();
        return true;
    }
    const std::vector<AutomationObjectPtr> selected = AllSelected();
    if (kind == LevelKind::Face)
        ClearFace();
    else
        ClearFeature();
    Rebuild();
    bool append = false;
    for (const AutomationObjectPtr& object : selected)
        object->Invoke("Select", {std::exchange(append, true)});
    return true;
}

// The calls work on all that is selected: nothing else may be.

void SelectedLevels::ClearFace() const {
    object_->Invoke("Select", {false});
    SelectedProperties::ClearFace(session_.Document());
}

void SelectedLevels::ClearFeature() const {
    feature_->Invoke("Select", {false});
    SelectedProperties::ClearFeature(session_.Document(),
                                     feature_->Get("IsSuppressed").AsBoolean());
}

std::vector<AutomationObjectPtr> SelectedLevels::AllSelected() const {
    std::vector<AutomationObjectPtr> selected{object_};
    for (std::int32_t index = 2; index <= count_; ++index)
        if (AutomationObjectPtr object = selection_->ObjectAt(index))
            selected.push_back(std::move(object));
    return selected;
}

} // namespace

std::string modSldTools::SWXReadLevels(LevelColors& colors) {
    colors = {};
    SelectedLevels selected(ports_.service);
    std::string refusal = selected.Take();
    if (refusal.empty())
        colors = selected.Read();
    return refusal;
}

std::string modSldTools::SWXClearLevel(LevelKind kind, LevelColors& colors) {
    {
        const LevelColors shown = std::exchange(colors, {});
        SelectedLevels selected(ports_.service);
        if (std::string refusal = selected.Take(); !refusal.empty())
            return refusal;
        colors = selected.Read();
        if (colors != shown)
            return ResultKey::LevelsChanged;
        if (!selected.Clear(kind))
            return ResultKey::NoRequiredSWAPI;
    } // every object is let go of before it is read anew
    const std::string refusal = SWXReadLevels(colors);
    return refusal.empty() ? ResultKey::Okay : refusal;
}
