#pragma once

#include "platform/VariantConversion.h"

// Makes the application object reachable for clients while this object lives: as the running object
// of its class (RegisterActiveObject) and through a class object (CoRegisterClassObject).
class RunningRegistration {
public:
    // Throws RuntimeError when the platform refuses.
    RunningRegistration(const CLSID& classId, DispatchPtr application);
    RunningRegistration(const RunningRegistration&) = delete;
    RunningRegistration& operator=(const RunningRegistration&) = delete;
    ~RunningRegistration();

private:
    void Revoke() const noexcept;

    DispatchPtr application_;
    DWORD activeObject_ = 0;
    DWORD classObject_ = 0;
};
