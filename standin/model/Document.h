#pragma once

#include "common/RuntimeError.h"
#include "standin/model/StandardColorTable.h"
#include "standin/model/Feature.h"
#include "standin/model/Selection.h"
#include "standin/model/SelectionManager.h"
#include "standin/model/WithMembers.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class Configuration;

// The numbers are those that GetType answers.
enum class DocumentType : std::int32_t { Part = 1, Assembly = 2, Drawing = 3 };

// What parts, assemblies and drawings have in common.
class Document : public WithMembers<Document, StandInObject>,
                 public std::enable_shared_from_this<Document> {
public:
    [[nodiscard]] DocumentType Type() const noexcept { return type_; }
    [[nodiscard]] const std::string& Title() const noexcept { return title_; }
    void SetTitle(std::string title);
    // Where its file is; empty for a document that was never saved.
    [[nodiscard]] const std::string& Path() const noexcept { return path_; }
    void SetPath(std::string path) { path_ = std::move(path); }

    // The color of the document itself.
    [[nodiscard]] const MaterialOverride& Color() const noexcept { return color_; }
    void SetColor(const MaterialOverride& color);

    // A feature that carries a color.  typeName: as GetTypeName answers.
    void AddFeature(const std::string& name, const MaterialOverride& color = {},
                    const std::string& typeName = "Extrusion");
    // Something else among the features: a plane, a sketch, a folder.
    void AddReference(EntityKind kind, const std::string& name, const std::string& typeName);

    // Those that carry a color.
    [[nodiscard]] const std::vector<std::shared_ptr<Feature>>& Features() const noexcept {
        return features_;
    }
    // Null behind the last one.
    [[nodiscard]] std::shared_ptr<Feature> FeatureAt(std::size_t index) const;
    // All, as a client walks them.
    [[nodiscard]] const std::vector<std::shared_ptr<Feature>>& Chain() const noexcept {
        return chain_;
    }
    // Null behind the last one.
    [[nodiscard]] std::shared_ptr<Feature> ChainAt(std::size_t index) const;

    [[nodiscard]] const Selection& CurrentSelection() const noexcept { return selection_; }
    // Selects an entity that can be seen in this document; false for any other.
    bool Select(const EntityPtr& entity, bool append);
    // Selects what was picked through a component; none in a part.
    void SelectItem(const SelectedItem& item, bool append);
    void Deselect(const SelectedItem& item);
    void ClearSelection();

    [[nodiscard]] const StandardColorTable& Colors() const noexcept { return *colorTable_; }
    [[nodiscard]] StandardColorTable& Colors() noexcept { return *colorTable_; }
    // How often EditRebuild was called.
    [[nodiscard]] int RebuildCount() const noexcept { return rebuildCount_; }

    [[nodiscard]] std::string Label() const override { return "document \"" + title_ + "\""; }
    [[nodiscard]] const MemberTable<Document>& Members() const;

protected:
    Document(SessionPtr session, DocumentType type, std::string title);

    // Connects the parts of a document that point back to it; to be called once it is shared.
    void Connect();

    [[nodiscard]] const SessionPtr& OwnSession() const noexcept { return session_; }

    // How an entity is seen in this document: through which component, or not at all.
    [[nodiscard]] virtual std::optional<SelectedItem> Locate(const EntityPtr& entity) const = 0;
    [[nodiscard]] virtual std::shared_ptr<Configuration> ActiveConfiguration() const;

private:
    friend struct DocumentMembers;

    SessionPtr session_;
    DocumentType type_;
    std::string title_;
    std::string path_;
    MaterialOverride color_;
    std::vector<std::shared_ptr<Feature>> features_;
    std::vector<std::shared_ptr<Feature>> chain_;
    Selection selection_;
    std::shared_ptr<SelectionManager> selectionManager_;
    std::shared_ptr<StandardColorTable> colorTable_;
    int rebuildCount_ = 0;
};

using DocumentPtr = std::shared_ptr<Document>;

// The document that an object belongs to.  Throws RuntimeError Automation when it is gone.
template <class Owner>
[[nodiscard]] std::shared_ptr<Owner> RequireOpen(const std::weak_ptr<Owner>& owner) {
    std::shared_ptr<Owner> document = owner.lock();
    if (!document)
        throw RuntimeError(ErrorNumber::Automation, "The document of this object is closed");
    return document;
}
