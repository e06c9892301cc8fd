#pragma once

#include "standin/model/ModelEvents.h"

#include <memory>
#include <string>

class Document;

// What all objects of one stand-in share.  It owns no object of the model, so objects may keep it.
struct Session {
    std::string revision;
    bool isVisible = true;
    std::weak_ptr<Document> activeDocument;
    ModelEvents events;
};

using SessionPtr = std::shared_ptr<Session>;
