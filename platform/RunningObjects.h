#pragma once

#include "common/BusyRetry.h"
#include "common/ports/AutomationObject.h"

#include <functional>
#include <windows.h>
#include <unknwn.h>

// The running-object service: CLSIDFromProgID and GetActiveObject.
class RunningObjects : public AutomationService {
public:
    // Gives the active object of a class, as GetActiveObject does.
    using ActiveObjectSource = std::function<HRESULT(const CLSID&, IUnknown**)>;

    // retry must outlive the objects that are returned.
    explicit RunningObjects(BusyRetry& retry) : RunningObjects(retry, ActiveObject) {}
    RunningObjects(BusyRetry& retry, ActiveObjectSource source)
        : retry_(retry), source_(std::move(source)) {}

    [[nodiscard]] AutomationObjectPtr GetRunningObject(const std::string& className) override;

private:
    [[nodiscard]] static HRESULT ActiveObject(const CLSID& classId, IUnknown** object);
    [[nodiscard]] HRESULT Attach(const CLSID& classId, IDispatch** dispatch) const;

    BusyRetry& retry_;
    ActiveObjectSource source_;
};
