#pragma once

#include "common/ports/AutomationObject.h"

#include <cstdint>
#include <string>

namespace DocumentType {
inline constexpr std::int32_t Part = 1;
inline constexpr std::int32_t Assembly = 2;
} // namespace DocumentType

namespace SelectionType {
inline constexpr std::int32_t Face = 2;
inline constexpr std::int32_t Component = 20;
inline constexpr std::int32_t BodyFeature = 22;

// Nothing else does.
[[nodiscard]] constexpr bool CarriesColor(std::int32_t type) noexcept {
    return type == Face || type == Component || type == BodyFeature;
}
} // namespace SelectionType

// Which documents an operation works on.
enum class DocumentDemand { Any, PartOrAssembly, Assembly, Part };

// The running SolidWorks during one operation; nothing of it is kept between two operations.
// Failing calls throw RuntimeError.
class SolidWorksSession {
public:
    // Attaches to an instance that is running; never starts one.  Any failure gives a session that
    // is not attached.
    explicit SolidWorksSession(AutomationService& service);

    [[nodiscard]] bool IsAttached() const noexcept { return application_ != nullptr; }

    // Reads ActiveDoc and, unless any document will do, its GetType.  Gives the result key of what
    // is missing (ResultKey), or nothing when the work can begin.
    [[nodiscard]] std::string TakeDocument(DocumentDemand demand);

    // The document taken, and its type.
    [[nodiscard]] AutomationObject& Document() const { return *document_; }
    [[nodiscard]] bool IsAssembly() const noexcept {
        return documentType_ == DocumentType::Assembly;
    }

    // Reads RevisionNumber: component colors can be removed from 9.0 on.
    [[nodiscard]] bool HasRequiredRevision() const;

private:
    AutomationObjectPtr application_;
    AutomationObjectPtr document_;
    std::int32_t documentType_ = 0;
};

// The selection of a document, for the length of one operation.  Indexes count from 1.
class SolidWorksSelection {
public:
    // Reads SelectionManager.
    explicit SolidWorksSelection(AutomationObject& document);

    [[nodiscard]] std::int32_t Count() const;
    [[nodiscard]] AutomationObjectPtr ObjectAt(std::int32_t index) const; // may be null
    [[nodiscard]] std::int32_t TypeAt(std::int32_t index) const;
    [[nodiscard]] AutomationObjectPtr ComponentAt(std::int32_t index) const; // may be null

private:
    AutomationObjectPtr manager_;
};

// The object that a member gave.  Throws RuntimeError when it gave none.
[[nodiscard]] AutomationObjectPtr RequiredObject(const AutomationAnswer& answer);
