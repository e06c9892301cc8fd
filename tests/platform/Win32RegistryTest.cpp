// Rules: Window positions
#include "platform/Win32Registry.h"

#include "platform/Win32AnsiCodePage.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

constexpr auto kReadWrite = RegistryRights::ReadWrite;

class Win32RegistryTest : public testing::Test {
protected:
    ~Win32RegistryTest() override { RegDeleteTreeA(HKEY_CURRENT_USER, key.c_str()); }

    std::optional<RegistryValue> Query(const std::string& name) {
        return registry.Query(RegistryRoot::CurrentUser, key, name, RegistryRights::Read);
    }
    bool Set(const std::string& name, const RegistryValue& value) {
        return registry.Set(RegistryRoot::CurrentUser, key, name, value, kReadWrite);
    }

    std::string key = "Software\\tnt-test-" + std::to_string(GetCurrentProcessId());
    Win32AnsiCodePage codePage{1252};
    Win32Registry registry{codePage};
};

} // namespace

TEST_F(Win32RegistryTest, EachTypeComesBackWithItsBytes) {
    const std::string binary("\0\x01\xFF", 3);
    const std::string number("\x78\x56\x34\x12", 4);
    EXPECT_TRUE(Set("text", {RegistryType::String, std::string("True\0", 5)}));
    EXPECT_TRUE(Set("binary", {RegistryType::Binary, binary}));
    EXPECT_TRUE(Set("number", {RegistryType::DWord, number}));
    EXPECT_EQ(Query("text")->type, RegistryType::String);
    EXPECT_EQ(Query("text")->bytes, std::string("True\0", 5));
    EXPECT_EQ(Query("binary")->type, RegistryType::Binary);
    EXPECT_EQ(Query("binary")->bytes, binary);
    EXPECT_EQ(Query("number")->type, RegistryType::DWord);
    EXPECT_EQ(Query("number")->bytes, number);
}

TEST_F(Win32RegistryTest, EmptyValueHasNoBytes) {
    EXPECT_TRUE(Set("binary", {RegistryType::Binary, ""}));
    EXPECT_EQ(Query("binary")->bytes, "");
}

TEST_F(Win32RegistryTest, TextsAreBytesOfTheAnsiPageWhateverTheUnicodeTextIs) {
    EXPECT_TRUE(Set("Gr\xC3\xBCn", {RegistryType::String, std::string("\xFC\0", 2)}));
    EXPECT_EQ(Query("Gr\xC3\xBCn")->bytes, std::string("\xFC\0", 2));
    wchar_t stored[4] = {};
    DWORD size = sizeof stored;
    EXPECT_EQ(RegGetValueA(HKEY_CURRENT_USER, key.c_str(), "Gr\xFCn", RRF_RT_ANY, nullptr, nullptr,
                           nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, std::wstring(key.begin(), key.end()).c_str(),
                           L"Gr\u00FCn", RRF_RT_REG_SZ, nullptr, stored, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(std::wstring(stored), L"\u00FC");
}

TEST_F(Win32RegistryTest, MissingKeyAndMissingValueGiveNothing) {
    EXPECT_FALSE(Query("none"));
    EXPECT_TRUE(Set("text", {RegistryType::String, std::string("x\0", 2)}));
    EXPECT_FALSE(Query("none"));
}

TEST_F(Win32RegistryTest, KeysInBetweenAreMade) {
    key += "\\Form Positions";
    EXPECT_TRUE(Set("frmMain", {RegistryType::String, std::string("L=1;\0", 5)}));
    EXPECT_EQ(Query("frmMain")->bytes, std::string("L=1;\0", 5));
    key.resize(key.find("\\Form"));
}

TEST_F(Win32RegistryTest, MissingRightsAreAFailure) {
    EXPECT_FALSE(registry.Set(RegistryRoot::CurrentUser, key, "x", {RegistryType::String, "x"},
                              RegistryRights::QueryValue));
}

TEST_F(Win32RegistryTest, UnknownRootGivesNothing) {
    EXPECT_FALSE(registry.Query(0x80001234U, key, "x", RegistryRights::Read));
    EXPECT_FALSE(registry.Set(0x80001234U, key, "x", {RegistryType::String, "x"}, kReadWrite));
}

TEST_F(Win32RegistryTest, LocalMachineCanBeRead) {
    const auto root = registry.Query(RegistryRoot::LocalMachine,
                                     R"(SOFTWARE\Microsoft\Windows NT\CurrentVersion)",
                                     "SystemRoot", RegistryRights::Read);
    ASSERT_TRUE(root);
    EXPECT_EQ(root->type, RegistryType::String);
}
