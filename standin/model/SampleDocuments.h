#pragma once

#include "standin/model/AssemblyDocument.h"
#include "standin/model/PartDocument.h"
#include "standin/model/Scenario.h"

#include <vector>

// A part and an assembly, and the models that the assembly's components show.
struct SampleDocuments {
    std::shared_ptr<PartDocument> part;
    std::shared_ptr<AssemblyDocument> assembly;
    std::vector<DocumentPtr> others;
};

[[nodiscard]] SampleDocuments MakeSampleDocuments(const SessionPtr& session,
                                                  const Scenario& scenario);
