#pragma once

#include <string>
#include <vector>
#include <windows.h>

// The class name in the registry, while this object lives.  A class name that is registered for
// something else (a real installation) is left as it is, and its class id is used.
class ClassRegistration {
public:
    // className: the ProgID.  Throws RuntimeError when nothing can be registered.
    explicit ClassRegistration(std::wstring className);
    ClassRegistration(const ClassRegistration&) = delete;
    ClassRegistration& operator=(const ClassRegistration&) = delete;
    ~ClassRegistration();

    [[nodiscard]] const CLSID& ClassId() const noexcept { return classId_; }

private:
    void Register();
    [[nodiscard]] bool WriteBelow(HKEY root, const std::wstring& path);
    [[nodiscard]] bool Resolves() const;

    struct Place {
        HKEY root;
        std::wstring path;
    };

    std::wstring className_;
    CLSID classId_;
    std::vector<Place> written_;
};
