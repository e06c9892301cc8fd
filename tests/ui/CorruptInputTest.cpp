// Rules: Settings store
#include "common/ProgramNames.h"
#include "platform/KernelHandle.h"
#include "platform/Utf16.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/ScratchRegistry.h"
#include "tests/platform/SourceFile.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/RealProgram.h"

#include <chrono>

namespace {

constexpr std::size_t kMegabyte = 1U << 20U;
const std::string kSettings = ProgramNames::RegistryPath;

constexpr std::array kNames = {"Language",      "AlwaysOnTop",         "ConfirmDel",
                               "CreateBackups", "ViewToolbar",         "ViewBarStandards",
                               "ViewBarColor",  "ViewBarListview",     "ViewBarSolidWorks",
                               "ViewStatusBar", "ViewHugeColorDialog", "DefaultColorFile"};

// Starts the real program on what somebody else has written.
class CorruptInput : public testing::Test {
protected:
    ~CorruptInput() override {
        // Seconds in all; what grows with the square of its input takes hours.
        const auto spent = std::chrono::steady_clock::now() - start;
        EXPECT_LT(std::chrono::duration_cast<std::chrono::seconds>(spent).count(), 60);
    }
    void PutEverywhere(const RegistryValue& value) {
        for (const char* name : kNames)
            registry.Put(kSettings, name, value);
        registry.Put(kSettings, "LastSponsorShown", value);
        registry.Put(kSettings + "\\Form Positions", "frmMain", value);
    }
    // The program runs, and its window can be used and closed.
    void ExpectRuns() {
        program = std::make_unique<RealProgram>(registry, folder.Path(), codePage);
        program->application.Start();
        EXPECT_NE(IsWindowVisible(program->main.Handle()), FALSE);
        PumpMessages();
        program->Run(IDM_mnuOptionsLngGerman);
        program->Run(IDM_mnuViewHugeColorDialog);
        program->Close();
    }
    [[nodiscard]] std::string Shown(int command) const {
        return MenuText(GetMenu(program->main.Handle()), command);
    }
    // Built-in texts stay on the forms.
    void ExpectBuiltInTexts() const {
        EXPECT_EQ(Shown(IDM_mnuOptionsConfirmDel), "Löschen immer bestätigen");
        EXPECT_EQ(program->TextOfStop(), L"Stop");
    }
    void WriteLanguageFiles(const std::string& bytes) const {
        for (const char* name : {"tntlng_de.ini", "tntlng_us.ini"})
            folder.Write(name, bytes);
    }

    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
    ScratchFolder folder;
    ScratchRegistry registry;
    Win32AnsiCodePage codePage{1252};
    std::unique_ptr<RealProgram> program;
};

// Settings

TEST_F(CorruptInput, RubbishInEverySettingIsReportedOnceAndTheDefaultsHold) {
    PutEverywhere({REG_SZ, std::string("rubbish\0", 8)});
    ExpectRuns();
    ASSERT_EQ(program->prompts.messages.size(), 1U);
    EXPECT_NE(program->prompts.messages[0].prompt.find("Language, AlwaysOnTop"), std::string::npos);
    EXPECT_EQ(program->prompts.messages[0].prompt.find("DefaultColorFile"), std::string::npos);
}

TEST_F(CorruptInput, BytesInEverySettingAreReportedOnceAndTheDefaultsHold) {
    PutEverywhere({REG_BINARY, std::string("\0\xFF\0\x80", 4)});
    ExpectRuns();
    ASSERT_EQ(program->prompts.messages.size(), 1U);
    EXPECT_NE(program->prompts.messages[0].prompt.find("DefaultColorFile"), std::string::npos);
}

TEST_F(CorruptInput, OtherTypesInEverySettingCountAsAbsent) {
    for (const DWORD type :
         std::initializer_list<DWORD>{REG_NONE, REG_EXPAND_SZ, REG_MULTI_SZ, REG_QWORD}) {
        PutEverywhere({type, std::string("True\0\0\0\0", 8)});
        ExpectRuns();
        EXPECT_TRUE(program->prompts.messages.empty()) << type;
    }
}

TEST_F(CorruptInput, LargestNumberInEverySettingIsNoLanguage) {
    PutEverywhere({REG_DWORD, "\xFF\xFF\xFF\x7F"});
    ExpectRuns();
    ASSERT_EQ(program->prompts.messages.size(), 1U);
    EXPECT_NE(program->prompts.messages[0].prompt.find(": Language."), std::string::npos);
}

TEST_F(CorruptInput, MegabyteInEverySettingDoesNotStopTheProgram) {
    for (const char letter : {'1', 'x', '\xFC', ' ', '\\', '='}) {
        PutEverywhere({REG_SZ, std::string(kMegabyte - 1, letter) + '\0'});
        ExpectRuns();
    }
}

TEST_F(CorruptInput, ZeroBytesInEverySettingCountAsAbsent) {
    PutEverywhere({REG_SZ, std::string(300, '\0')});
    ExpectRuns();
    EXPECT_TRUE(program->prompts.messages.empty());
    PutEverywhere({REG_SZ, std::string("1\0rubbish", 9)});
    ExpectRuns();
    EXPECT_TRUE(program->prompts.messages.empty()) << "the text ends at its first zero byte";
}

// Language files

TEST_F(CorruptInput, DirectoryIsNoLanguageFile) {
    for (const char* name : {"tntlng_de.ini", "tntlng_us.ini"})
        CreateDirectoryW(ToUtf16(folder.File(name)).c_str(), nullptr);
    ExpectRuns();
    ExpectBuiltInTexts();
    EXPECT_EQ(program->language.IniFile(), "");
    EXPECT_EQ(program->language.GetInfoText(1), "INI file doesn't exists ");
}

TEST_F(CorruptInput, FileThatSomebodyHoldsAloneIsReadAsHavingNoKeys) {
    WriteLanguageFiles("[frmMain]\r\nmnuOptionsConfirmDel.Caption=x\r\n[Info]\r\nText.1=x\r\n");
    const auto hold = [&](const char* name) {
        return KernelHandle(CreateFileW(ToUtf16(folder.File(name)).c_str(), GENERIC_READ, 0,
                                        nullptr, OPEN_EXISTING, 0, nullptr));
    };
    const KernelHandle german = hold("tntlng_de.ini");
    const KernelHandle english = hold("tntlng_us.ini");
    ASSERT_TRUE(german && english);
    ExpectRuns();
    ExpectBuiltInTexts();
    EXPECT_EQ(program->language.GetInfoText(1), "unknown infotext 1");
}

TEST_F(CorruptInput, EmptyFileHasNoKeys) {
    WriteLanguageFiles("");
    ExpectRuns();
    ExpectBuiltInTexts();
    EXPECT_EQ(program->language.GetInfoText(1), "unknown infotext 1");
}

TEST_F(CorruptInput, FileOfZeroBytesHasNoKeys) {
    WriteLanguageFiles(std::string(kMegabyte / 8, '\0'));
    ExpectRuns();
    ExpectBuiltInTexts();
    EXPECT_EQ(program->language.GetInfoText(1), "unknown infotext 1");
}

TEST_F(CorruptInput, LineOfAMegabyteHasNoKeys) {
    WriteLanguageFiles(std::string(kMegabyte, 'x'));
    ExpectRuns();
    ExpectBuiltInTexts();
}

TEST_F(CorruptInput, ValueOfAMegabyteIsCutAndTheRestIsRead) {
    WriteLanguageFiles("[Info]\r\nText.1=" + std::string(kMegabyte, '\xFC') +
                       "\r\nText.2=after\r\n");
    ExpectRuns();
    ExpectBuiltInTexts();
    EXPECT_EQ(program->language.GetInfoText(1).size(), 2 * 255U) << "two bytes of UTF-8 each";
    EXPECT_EQ(program->language.GetInfoText(2), "after");
}

TEST_F(CorruptInput, FileInUtf16IsReadAsThePlatformReadsIt) {
    const std::string text =
        *Win32Files().ReadWhole(SourceFile("resources/language/tntlng_us.ini"));
    std::string wide = "\xFF\xFE";
    for (const char letter : text)
        wide += std::string{letter, '\0'};
    WriteLanguageFiles(wide);
    ExpectRuns();
    EXPECT_EQ(program->language.GetInfoText(0), "SolidWorks is not running.");
    EXPECT_EQ(Shown(IDM_mnuOptionsConfirmDel), "Always &confirm deleting");
}

TEST_F(CorruptInput, ControlCharactersInEveryTextAreTaken) {
    std::string text;
    for (int code = 1; code < 256; ++code)
        if (code != '\r' && code != '\n')
            text += static_cast<char>(code);
    WriteLanguageFiles("[frmMain]\r\nmnuOptionsConfirmDel.Caption=" + text +
                       "\r\nlblRed.Caption=" + text + "\r\ntlbarMain.Open.Caption=" + text +
                       "\r\ntlbarMain.New.NewGroup.Text=" + text + "\r\ntxtActiveColor.Text=" +
                       text + "\r\n[frmProgress]\r\ncmdCancel.Caption=" + text + "\r\n");
    ExpectRuns();
}

} // namespace
