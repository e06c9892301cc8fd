#pragma once

#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32Registry.h"

#include <gtest/gtest.h>
#include <string>
#include <windows.h>

// The real registry, with every key path below a scratch key of the current user that is deleted
// afterwards: no test touches the settings of the person at the machine.
class ScratchRegistry : public RegistryAccess {
public:
    explicit ScratchRegistry(unsigned codePage = 1252) : codePage_(codePage) {}
    ScratchRegistry(const ScratchRegistry&) = delete;
    ScratchRegistry& operator=(const ScratchRegistry&) = delete;
    ~ScratchRegistry() override { RegDeleteTreeA(HKEY_CURRENT_USER, scratch_.c_str()); }

    std::optional<RegistryValue> Query(std::uint32_t root, const std::string& keyPath,
                                       const std::string& valueName,
                                       std::uint32_t rights) override {
        return registry_.Query(root, Below(keyPath), valueName, rights);
    }
    bool Set(std::uint32_t root, const std::string& keyPath, const std::string& valueName,
             const RegistryValue& value, std::uint32_t rights) override {
        return registry_.Set(root, Below(keyPath), valueName, value, rights);
    }

    // As another program or a person would: any type, any bytes.
    void Put(const std::string& keyPath, const std::string& valueName, const RegistryValue& value) {
        ASSERT_TRUE(
            Set(RegistryRoot::CurrentUser, keyPath, valueName, value, RegistryRights::ReadWrite));
    }
    void PutText(const std::string& keyPath, const std::string& valueName,
                 const std::string& text) {
        Put(keyPath, valueName, {RegistryType::String, text + '\0'});
    }
    [[nodiscard]] RegistryValue Get(const std::string& keyPath, const std::string& valueName) {
        return Query(RegistryRoot::CurrentUser, keyPath, valueName, RegistryRights::Read)
            .value_or(RegistryValue{0, "(none)"});
    }

    [[nodiscard]] std::string Below(const std::string& keyPath) const {
        return scratch_ + "\\" + keyPath;
    }

private:
    std::string scratch_ = "Software\\tnt-test-" + std::to_string(GetCurrentProcessId());
    Win32AnsiCodePage codePage_;
    Win32Registry registry_{codePage_};
};
