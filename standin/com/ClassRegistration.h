#pragma once

#include <string>
#include <windows.h>

// The class name in the registry, while this object lives.  A class name that is registered for
// something else (a real installation) is left as it is, and its class id is used.  Otherwise every
// stand-in has a class id of its own: the object service may go on naming the class object of one
// that was killed.  The keys are volatile: what a killed stand-in leaves behind does not outlive
// the system's session.
class ClassRegistration {
public:
    // Where classes are registered: below a path of a key.
    struct Root {
        HKEY key;
        std::wstring path;
    };

    // className: the ProgID.  Throws RuntimeError when nothing can be registered.
    explicit ClassRegistration(std::wstring className);
    ClassRegistration(const ClassRegistration&) = delete;
    ClassRegistration& operator=(const ClassRegistration&) = delete;
    ~ClassRegistration();

    [[nodiscard]] const CLSID& ClassId() const noexcept { return classId_; }

private:
    void Register();
    void Remove(const CLSID& classId) const;
    [[nodiscard]] bool WriteBelow(const Root& root) const;
    [[nodiscard]] bool Resolves() const;

    std::wstring className_;
    CLSID classId_{};
    bool isOwn_ = false;
};
