#pragma once

#include "common/ports/FormWindow.h"
#include "support/settings/modRegistry.h"

#include <cstdint>
#include <string>

// Keeps one form's position in the registry: "L=1200;T=900;W=9600;H=7200;S=0;" in twips, in a value
// named after the form.
class CFormPos {
public:
    explicit CFormPos(const modRegistry& registry);

    // Null until it is set.
    [[nodiscard]] FormWindow* Form() const noexcept { return form_; }
    void SetForm(FormWindow& form) noexcept { form_ = &form; }
    [[nodiscard]] std::uint32_t RootKey() const noexcept { return rootKey_; }
    void SetRootKey(std::uint32_t rootKey) noexcept { rootKey_ = rootKey; }
    [[nodiscard]] const std::string& RegistryPath() const noexcept { return registryPath_; }
    void SetRegistryPath(const std::string& path) { registryPath_ = path; }
    [[nodiscard]] const std::string& SubKey() const noexcept { return subKey_; }
    void SetSubKey(const std::string& subKey) { subKey_ = subKey; }

    // The form must be set before each of these.

    // Centres the form on the screen, keeping its size.
    void CenterForm() const;

    // Applies the stored position; false when there is none.  A stored minimised or maximised state
    // is set alone and moves nothing, on purpose.  checkAgainstScreen: brings the left and top
    // edges onto the screen.
    bool RestoreForm(bool checkAgainstScreen) const;

    // Stores the form's bounds and state as they are.
    void SaveForm() const;

private:
    [[nodiscard]] std::string KeyPath() const;

    const modRegistry& registry_;
    FormWindow* form_ = nullptr;
    std::uint32_t rootKey_ = RegistryRoot::LocalMachine;
    std::string registryPath_;
    std::string subKey_;
};
