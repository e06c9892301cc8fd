// Rules: Settings store
#include "app/SettingsStore.h"

#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeRegistry.h"
#include "tests/fakes/Transcripts.h"

#include <gtest/gtest.h>

namespace {

const std::string kKey = "SOFTWARE\\Chromixs\\TNT4SWX|";

class SettingsStoreTest : public testing::Test {
protected:
    // The names of all settings, as they are asked for.
    std::vector<std::string> Names() {
        store.Load(settings);
        std::vector<std::string> names;
        for (const std::string& path : registry.queries)
            names.push_back(path.substr(kKey.size()));
        return names;
    }

    FakeRegistry registry;
    FakeCodePage codePage = FakeCodePage::Western();
    modRegistry access{registry, codePage};
    SettingsStore store{access};
    Settings settings;
};

TEST_F(SettingsStoreTest, EmptyRegistryKeepsTheDefaults) {
    EXPECT_TRUE(store.Load(settings).empty());
    EXPECT_EQ(settings, Settings{});
    EXPECT_EQ(settings.language, 1);
    EXPECT_TRUE(settings.alwaysOnTop && settings.confirmDel && settings.createBackups);
    EXPECT_TRUE(settings.viewToolbar && settings.viewBarColor && settings.viewBarSolidWorks);
    EXPECT_FALSE(settings.viewBarStandards || settings.viewBarListview || settings.viewStatusBar ||
                 settings.viewHugeColorDialog || settings.viewColorsInList ||
                 settings.viewMaterialPreview);
    EXPECT_EQ(settings.defaultColorFile, "");
}

// The names under which the settings of every user lie in the registry, with the defaults.
TEST_F(SettingsStoreTest, SettingsAreReadAndWrittenInOneOrderUnderTheirNames) {
    store.Load(settings);
    std::vector<std::string> read = registry.queries;
    for (const char* name : {"ViewMaterialPreview", "ViewColorsInList"}) {
        EXPECT_EQ(read.back(), kKey + name);
        read.pop_back(); // not stored before it is used
    }
    store.Save(settings);
    EXPECT_EQ(registry.written, read);
    std::string lines;
    for (const std::string& path : registry.written)
        lines += path + " = " + registry.Text(path) + "\n";
    ExpectTranscript(lines);
}

// Who never uses them has the values that there were before it could be done.
TEST_F(SettingsStoreTest, ColorsInTheListAndPreviewAreNotStoredUntilTheyHaveBeenSwitchedOn) {
    const std::size_t settingsInAll = Names().size();
    store.Save(settings);
    EXPECT_EQ(registry.written.size(), settingsInAll - 2);
    for (const auto& [name, setting] :
         {std::pair{"ViewColorsInList", &Settings::viewColorsInList},
          std::pair{"ViewMaterialPreview", &Settings::viewMaterialPreview}}) {
        const std::string path = kKey + name;
        EXPECT_FALSE(registry.values.contains(path));
        settings.*setting = true;
        store.Save(settings);
        EXPECT_EQ(registry.Text(path), "True");
        settings.*setting = false;
        store.Save(settings);
        EXPECT_EQ(registry.Text(path), "False");
        store.Save(settings);
        EXPECT_EQ(registry.Text(path), "False");
    }
}

TEST_F(SettingsStoreTest, ValuesAreStoredAsStrings) {
    settings.language = 0;
    settings.confirmDel = false;
    settings.defaultColorFile = "C:\\Größe.tnt";
    store.Save(settings);
    EXPECT_EQ(registry.Text(kKey + "Language"), "0");
    EXPECT_EQ(registry.Text(kKey + "AlwaysOnTop"), "True");
    EXPECT_EQ(registry.Text(kKey + "ConfirmDel"), "False");
    EXPECT_EQ(registry.Text(kKey + "DefaultColorFile"), "C:\\Gr\xF6\xDF"
                                                        "e.tnt");
    for (const auto& [path, value] : registry.values)
        EXPECT_EQ(value.type, RegistryType::String) << path;
}

TEST_F(SettingsStoreTest, WhatIsSavedIsLoaded) {
    Settings other;
    other.language = 0;
    other.alwaysOnTop = other.confirmDel = other.createBackups = other.viewToolbar = false;
    other.viewBarColor = other.viewBarSolidWorks = false;
    other.viewBarStandards = other.viewBarListview = other.viewStatusBar = true;
    other.viewHugeColorDialog = other.viewColorsInList = other.viewMaterialPreview = true;
    other.defaultColorFile = "C:\\a.tnt";
    store.Save(other);
    store.Load(settings);
    EXPECT_EQ(settings, other);
}

TEST_F(SettingsStoreTest, BooleansConvertFromWordsInAnyCaseAndFromNumbers) {
    for (const auto& [text, expected] :
         {std::pair{"false", false}, std::pair{"FALSE", false}, std::pair{"0", false},
          std::pair{"-1", true}, std::pair{"tRuE", true}}) {
        registry.SetText(kKey + "ConfirmDel", text);
        EXPECT_TRUE(store.Load(settings).empty());
        EXPECT_EQ(settings.confirmDel, expected) << text;
    }
}

TEST_F(SettingsStoreTest, ValuesThatDoNotConvertKeepTheirDefaultsAndAreNamed) {
    registry.SetText(kKey + "Language", "99999");
    registry.SetText(kKey + "ViewToolbar", "perhaps");
    registry.SetText(kKey + "ConfirmDel", "False");
    EXPECT_EQ(store.Load(settings), (std::vector<std::string>{"Language", "ViewToolbar"}));
    EXPECT_EQ(settings.language, 1);
    EXPECT_TRUE(settings.viewToolbar);
    EXPECT_FALSE(settings.confirmDel);
}

TEST_F(SettingsStoreTest, BytesAreNoTextOfASetting) {
    const std::vector<std::string> names = Names();
    for (const std::string& name : names)
        registry.values[kKey + name] = {RegistryType::Binary, "True"};
    EXPECT_EQ(store.Load(settings), names);
    EXPECT_EQ(settings, Settings{});
    registry.values[kKey + "LastSponsorShown"] = {RegistryType::Binary, "2"};
    EXPECT_EQ(store.LoadLastSponsorShown(), "1");
}

TEST_F(SettingsStoreTest, NumberOfTheRegistryConvertsAsItsText) {
    registry.values[kKey + "Language"] = {RegistryType::DWord, std::string(4, '\0')};
    registry.values[kKey + "ConfirmDel"] = {RegistryType::DWord, std::string(4, '\0')};
    EXPECT_TRUE(store.Load(settings).empty());
    EXPECT_EQ(settings.language, 0);
    EXPECT_FALSE(settings.confirmDel);
}

TEST_F(SettingsStoreTest, LanguageBeyondTheTwoIsLoadedAllTheSame) {
    registry.SetText(kKey + "Language", "2");
    EXPECT_TRUE(store.Load(settings).empty());
    EXPECT_EQ(settings.language, 2);
}

TEST_F(SettingsStoreTest, EmptyTextCountsAsAbsent) {
    settings.defaultColorFile = "C:\\a.tnt";
    for (const std::string& name : Names())
        registry.SetText(kKey + name, "");
    EXPECT_TRUE(store.Load(settings).empty());
    EXPECT_EQ(settings.language, 1);
    EXPECT_EQ(settings.defaultColorFile, "C:\\a.tnt");
}

TEST_F(SettingsStoreTest, LastSponsorShownDefaultsToOneAndIsKeptApart) {
    EXPECT_EQ(store.LoadLastSponsorShown(), "1");
    store.SaveLastSponsorShown(3);
    EXPECT_EQ(registry.written, std::vector<std::string>{kKey + "LastSponsorShown"});
    EXPECT_EQ(store.LoadLastSponsorShown(), "3");
}

} // namespace
