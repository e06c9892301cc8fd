#pragma once

#include "standin/model/MaterialValues.h"
#include "standin/model/Session.h"
#include "standin/model/StandInObject.h"

#include <cstdint>

// What can be selected; the numbers are those that the selection manager reports.
enum class EntityKind : std::int32_t {
    Edge = 1,
    Face = 2,
    Vertex = 3,
    Plane = 4,
    Sketch = 9,
    Component = 20,
    BodyFeature = 22,
    Folder = 94
};

// "edge", "face", "vertex", "plane", "sketch", "component", "feature", "folder".
[[nodiscard]] const char* EntityKindName(EntityKind kind) noexcept;

// Faces, components and features do; nothing else shows a color.
[[nodiscard]] bool CarriesColor(EntityKind kind) noexcept;

// Something of a document that can be selected.
class Entity : public StandInObject, public std::enable_shared_from_this<Entity> {
public:
    // owner: the document that the entity is part of.
    Entity(SessionPtr session, EntityKind kind, std::string name, std::weak_ptr<Document> owner)
        : session_(std::move(session)), kind_(kind), name_(std::move(name)),
          owner_(std::move(owner)) {}

    [[nodiscard]] EntityKind Kind() const noexcept { return kind_; }
    [[nodiscard]] const std::string& Name() const noexcept { return name_; }
    void Rename(std::string name);

    // Null when the document is closed.
    [[nodiscard]] std::shared_ptr<Document> Owner() const noexcept { return owner_.lock(); }
    // Throws RuntimeError Automation when the document is closed.
    [[nodiscard]] std::shared_ptr<Document> RequireOwner() const;

    // The color that it carries itself.
    [[nodiscard]] const MaterialOverride& Color() const noexcept { return color_; }
    void SetColor(const MaterialOverride& color);

    // Selects it in the active document: added to the selection, or instead of it.  False when it
    // cannot be seen there.
    bool Select(bool append);

    [[nodiscard]] std::string Label() const override;

protected:
    [[nodiscard]] const SessionPtr& OwnSession() const noexcept { return session_; }

private:
    SessionPtr session_;
    EntityKind kind_;
    std::string name_;
    std::weak_ptr<Document> owner_;
    MaterialOverride color_;
};

using EntityPtr = std::shared_ptr<Entity>;
