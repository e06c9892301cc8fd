#include "standin/com/StandInServer.h"

#include "common/ProgramNames.h"
#include "platform/Utf16.h"

StandInServer::StandInServer(StandInModel& model)
    : objects_(std::make_shared<ServedObjects>()), class_(ToUtf16(ProgramNames::SolidWorksClass)),
      running_(class_.ClassId(), objects_->DispatchOf(model.ApplicationObject())) {}
