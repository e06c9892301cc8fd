#pragma once

#include <string>
#include <windows.h>

// A class name that is registered for one test, with an id of its own and without a program.
class ScratchClass {
public:
    ScratchClass();
    ScratchClass(const ScratchClass&) = delete;
    ScratchClass& operator=(const ScratchClass&) = delete;
    ~ScratchClass();

    [[nodiscard]] bool IsRegistered() const noexcept { return isRegistered_; }
    [[nodiscard]] std::string Name() const;
    [[nodiscard]] const CLSID& Id() const noexcept { return id_; }

private:
    std::wstring name_;
    CLSID id_{};
    bool isRegistered_ = false;
};
