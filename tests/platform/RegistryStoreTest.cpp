// Rules: Window positions
#include "app/SettingsStore.h"
#include "common/ProgramNames.h"
#include "support/settings/CFormPos.h"
#include "tests/fakes/FakeFormWindow.h"
#include "tests/platform/ScratchRegistry.h"

namespace {

constexpr std::size_t kMegabyte = 1U << 20U;
const std::string kSettings = ProgramNames::RegistryPath;
const std::string kPositions = kSettings + "\\Form Positions";

// What keeps its values in the registry, on the real one.
class RegistryStoreTest : public testing::Test {
protected:
    RegistryStoreTest() {
        position.SetForm(form);
        position.SetRootKey(RegistryRoot::CurrentUser);
        position.SetRegistryPath(ProgramNames::RegistryPath);
        position.SetSubKey(ProgramNames::FormPositionsKey);
    }
    [[nodiscard]] RegistryVariant Read(const std::string& name) const {
        return access.RegistryGetKeyValue(RegistryRoot::CurrentUser, kSettings, name);
    }
    void Write(const std::string& name, const RegistryVariant& value, std::uint32_t type) const {
        access.RegistrySetKeyValue(RegistryRoot::CurrentUser, kSettings, name, value, type);
    }
    // Type and size as the registry itself tells them.
    void ExpectStored(const std::string& name, DWORD type, DWORD size) const {
        DWORD storedType = 0;
        DWORD storedSize = 0;
        ASSERT_EQ(RegGetValueA(HKEY_CURRENT_USER, registry.Below(kSettings).c_str(), name.c_str(),
                               RRF_RT_ANY, &storedType, nullptr, &storedSize),
                  ERROR_SUCCESS)
            << name;
        EXPECT_EQ(storedType, type) << name;
        EXPECT_EQ(storedSize, size) << name;
    }

    ScratchRegistry registry;
    Win32AnsiCodePage codePage{1252};
    modRegistry access{registry, codePage};
    SettingsStore store{access};
    FakeFormWindow form; // 9600 x 7200 on a screen of 15360 x 11520
    CFormPos position{access};
};

TEST_F(RegistryStoreTest, EachTypeIsStoredAsSuchAndReadsBack) {
    Write("text", "Größe", RegistryType::String);
    Write("bytes", std::vector<std::uint8_t>{0, 1, 255}, RegistryType::Binary);
    Write("number", std::int32_t{-2}, RegistryType::DWord);
    ExpectStored("text", REG_SZ, 6);
    ExpectStored("bytes", REG_BINARY, 3);
    ExpectStored("number", REG_DWORD, 4);
    EXPECT_EQ(Read("text"), RegistryVariant("Größe"));
    EXPECT_EQ(Read("bytes"), RegistryVariant(std::vector<std::uint8_t>{0, 1, 255}));
    EXPECT_EQ(Read("number"), RegistryVariant(std::int32_t{-2}));
}

TEST_F(RegistryStoreTest, EveryOtherTypeIsEmpty) {
    const std::string text("%TEMP%\0\0", 8);
    for (const DWORD type :
         std::initializer_list<DWORD>{REG_NONE, REG_EXPAND_SZ, REG_MULTI_SZ, REG_QWORD, 77}) {
        registry.Put(kSettings, "x", {type, text});
        EXPECT_EQ(Read("x"), RegistryVariant{}) << type;
    }
}

TEST_F(RegistryStoreTest, TextWithoutANulAndNumberOfAnotherSizeAreTakenForWhatTheyAre) {
    registry.Put(kSettings, "text", {REG_SZ, "abc"});
    registry.Put(kSettings, "empty", {REG_SZ, ""});
    registry.Put(kSettings, "zeros", {REG_SZ, std::string("a\0b\0\0", 5)});
    registry.Put(kSettings, "number", {REG_DWORD, "xyz"});
    EXPECT_EQ(Read("text"), RegistryVariant("abc"));
    EXPECT_EQ(Read("empty"), RegistryVariant{});
    EXPECT_EQ(Read("zeros"), RegistryVariant("a"));
    EXPECT_EQ(Read("number"), RegistryVariant{});
}

TEST_F(RegistryStoreTest, SettingsAreStringsUnderTheProgramsKey) {
    Settings settings;
    settings.language = 0;
    settings.confirmDel = false;
    settings.defaultColorFile = "C:\\Größe.tnt";
    store.Save(settings);
    store.SaveLastSponsorShown(12);
    ExpectStored("Language", REG_SZ, 2);
    ExpectStored("LastSponsorShown", REG_SZ, 3);
    ExpectStored("DefaultColorFile", REG_SZ, 13);
    for (const char* name :
         {"AlwaysOnTop", "CreateBackups", "ViewToolbar", "ViewBarColor", "ViewBarSolidWorks"})
        ExpectStored(name, REG_SZ, 5);
    for (const char* name : {"ConfirmDel", "ViewBarStandards", "ViewBarListview", "ViewStatusBar",
                             "ViewHugeColorDialog"})
        ExpectStored(name, REG_SZ, 6);
    EXPECT_EQ(registry.Get(kSettings, "ConfirmDel").bytes, std::string("False\0", 6));
}

TEST_F(RegistryStoreTest, SettingsThatAreSavedAreLoaded) {
    Settings saved;
    saved.language = 0;
    saved.alwaysOnTop = saved.createBackups = saved.viewToolbar = saved.viewBarColor = false;
    saved.viewBarStandards = saved.viewBarListview = saved.viewHugeColorDialog = true;
    saved.defaultColorFile = "C:\\Größe.tnt";
    store.Save(saved);
    Settings loaded;
    EXPECT_TRUE(store.Load(loaded).empty());
    EXPECT_EQ(loaded, saved);
}

TEST_F(RegistryStoreTest, KeyThatIsMissingGivesTheDefaults) {
    Settings loaded;
    EXPECT_TRUE(store.Load(loaded).empty());
    EXPECT_EQ(loaded, Settings{});
    EXPECT_EQ(store.LoadLastSponsorShown(), "1");
    EXPECT_FALSE(position.RestoreForm(true));
}

TEST_F(RegistryStoreTest, ValueOfAMegabyteConvertsToNothingElseThanAPath) {
    const std::string longText(kMegabyte - 1, '1');
    registry.PutText(kSettings, "Language", longText);
    registry.PutText(kSettings, "ConfirmDel", longText);
    registry.PutText(kSettings, "DefaultColorFile", longText);
    Settings loaded;
    EXPECT_EQ(store.Load(loaded), std::vector<std::string>{"Language"});
    EXPECT_EQ(loaded.language, 1);
    EXPECT_TRUE(loaded.confirmDel) << "a number that is not 0";
    EXPECT_EQ(loaded.defaultColorFile, longText);
}

TEST_F(RegistryStoreTest, PositionIsOneStringNamedAfterTheForm) {
    position.SaveForm();
    const RegistryValue stored = registry.Get(kPositions, "frmMain");
    EXPECT_EQ(stored.type, RegistryType::String);
    EXPECT_EQ(stored.bytes, std::string("L=1200;T=900;W=9600;H=7200;S=0;") + '\0');
}

TEST_F(RegistryStoreTest, PositionThatIsSavedIsRestored) {
    const TwipsRect saved = form.bounds;
    position.SaveForm();
    form.bounds = {};
    EXPECT_TRUE(position.RestoreForm(true));
    EXPECT_EQ(form.bounds, saved);
}

TEST_F(RegistryStoreTest, PositionOfAnotherTypeIsNone) {
    const std::string text = "L=1;T=2;W=3;H=4;S=0;";
    for (const DWORD type : std::initializer_list<DWORD>{REG_NONE, REG_EXPAND_SZ, REG_BINARY,
                                                         REG_DWORD, REG_MULTI_SZ}) {
        registry.Put(kPositions, "frmMain", {type, text + '\0'});
        EXPECT_FALSE(position.RestoreForm(true)) << type;
    }
    EXPECT_EQ(form.moves, 0);
}

TEST_F(RegistryStoreTest, PositionOfAMegabyteOrWithZeroBytesIsReadAsFarAsItGoes) {
    registry.PutText(kPositions, "frmMain",
                     "L=10;T=20;W=30;H=40;S=0;" + std::string(kMegabyte - 30, '9'));
    EXPECT_TRUE(position.RestoreForm(true));
    EXPECT_EQ(form.bounds, (TwipsRect{10, 20, 30, 40}));
    registry.Put(kPositions, "frmMain", {REG_SZ, std::string("L=5;T=6;\0W=7;H=8;", 17)});
    EXPECT_TRUE(position.RestoreForm(true));
    EXPECT_EQ(form.bounds, (TwipsRect{5, 6, 0, 0}));
    registry.Put(kPositions, "frmMain", {REG_SZ, std::string(100, '\0')});
    EXPECT_FALSE(position.RestoreForm(true));
}

} // namespace
