#include "standin/com/ServedObjects.h"

#include "standin/com/ServedObject.h"

DispatchPtr ServedObjects::DispatchOf(const StandInObjectPtr& object) {
    IDispatch*& known = served_[object.get()];
    if (known != nullptr)
        return known;
    DispatchPtr made;
    AdoptNew(made, new ServedObject(shared_from_this(), object));
    known = made.Get();
    return made;
}
