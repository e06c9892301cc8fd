#pragma once

#include "standin/model/DisplayColor.h"
#include "standin/model/StandInModel.h"

#include <string>
#include <vector>

// Everything that can be selected in the document, in the order in which it is listed: of a part
// features, faces, edges; of an assembly its features, then each component, followed by what its
// model holds and by its children.  Empty for null and for a drawing.
[[nodiscard]] std::vector<SelectedItem> ObjectRows(const DocumentPtr& document);

// The name in the list, unique in a document: "Face 3", or "Face 3 of Cover-1" when it is seen
// through a component.
[[nodiscard]] std::string RowName(const SelectedItem& item);

// The color that the object shows.  An edge shows none (ColorLevel::None).
[[nodiscard]] DisplayColor DisplayColorOf(const SelectedItem& item);
