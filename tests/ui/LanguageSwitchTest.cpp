// Rules: Language files and control texts
#include "mainwindow/CommandTable.h"
#include "mainwindow/ToolbarTable.h"
#include "platform/Utf16.h"
#include "resources/controls.h"
#include "support/language/Languages.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/ScratchRegistry.h"
#include "tests/platform/SourceFile.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/RealProgram.h"

#include <functional>
#include <utility>

namespace {

bool IsTopmost(HWND window) {
    return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

// The real program in a folder with both language files; it starts in English.
class LanguageSwitch : public testing::Test {
protected:
    LanguageSwitch() {
        for (const Language& language : kLanguages)
            CopyLanguageFile(language.code);
    }
    void CopyLanguageFile(const std::string& code) {
        const std::string name = "tntlng_" + code + ".ini";
        folder.Write(name, *files.ReadWhole(SourceFile("resources/language/" + name)));
    }
    RealProgram& Start() {
        program = std::make_unique<RealProgram>(registry, folder.Path(), codePage);
        program->application.Start();
        return *program;
    }

    void RenameAColor() {
        program->prompts.typed = {"Paints", "Reds", "Signal"};
        program->Run(IDM_mnuColorNewMainNode);
        program->application.MainWindowEvents().list.RowLabelEdited(0, "Ruby");
    }

    // The text of a key as it stands in the file of a language.
    [[nodiscard]] std::string InFile(const std::string& code, const std::string& section,
                                     const std::string& key) {
        return program->language.INIGetSettingString(
            section, key, folder.File("tntlng_" + code + ".ini"), "(missing)");
    }
    void ExpectMenus(const std::string& code) {
        const HMENU bar = GetMenu(program->main.Handle());
        for (const MenuRow& row : MenuRows()) {
            if (row.place == MenuKind::Separator || row.place == MenuKind::Title)
                continue;
            const std::string shown = MenuText(bar, row.command);
            EXPECT_EQ(shown.substr(0, shown.find('\t')),
                      InFile(code, "frmMain", std::string(row.name) + ".Caption"));
        }
    }
    void ExpectTitles(const std::string& code) {
        const HMENU bar = GetMenu(program->main.Handle());
        UINT place = 0;
        for (const MenuRow& row : MenuRows()) {
            if (row.place != MenuKind::Title)
                continue;
            std::array<wchar_t, 64> text{};
            GetMenuStringW(bar, place++, text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
            EXPECT_EQ(ToUtf8(text.data()),
                      InFile(code, "frmMain", std::string(row.name) + ".Caption"));
        }
        EXPECT_EQ(static_cast<int>(place), GetMenuItemCount(bar));
    }
    void ExpectToolTips(const std::string& code) {
        for (const ToolbarRow& row : kToolbarRows) {
            if (row.command == 0)
                continue;
            const std::string key = std::string("tlbarMain.") + row.key + ".ToolTipText";
            EXPECT_EQ(ButtonTip(program->main.Handle(), row.command), InFile(code, "frmMain", key));
        }
    }
    void ExpectLabels(const std::string& code) {
        const auto expectText = [&](HWND form, int id, const char* section, const char* key) {
            EXPECT_EQ(ToUtf8(TextOf(FindChild(form, id))), InFile(code, section, key));
        };
        const HWND main = program->main.Handle();
        expectText(main, IDC_tlbarMain, "frmMain", "nameToolbar.Caption");
        expectText(main, IDC_tvColor, "frmMain", "nameTree.Caption");
        expectText(main, IDC_lvColor, "frmMain", "nameList.Caption");
        expectText(main, IDC_sldActiveColor, "frmMain", "lblRed.ToolTipText");
        expectText(main, IDC_sldActiveColor + 7, "frmMain", "lblTransparency.ToolTipText");
        expectText(main, IDC_fraShowColor, "frmMain", "fraShowColor.Caption");
        expectText(main, IDC_lblAmbient, "frmMain", "lblAmbient.Caption");
        expectText(main, IDC_lblSpecular, "frmMain", "lblSpecular.Caption");
        program->progress.ShowProgress("x", 0, 1);
        expectText(program->ProgressHandle(), IDC_cmdCancel, "frmProgress", "cmdCancel.Caption");
        program->progress.HideProgress();
    }
    // Opens the About window, looks at it while it is shown, and closes it.
    void LookAtAbout(std::function<void(HWND)> look) const {
        static std::function<void(HWND)> pending;
        pending = std::move(look);
        SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR timer, DWORD) {
            const HWND about = FindWindowW(L"frmAbout", nullptr);
            if (IsWindowVisible(about) == FALSE)
                return; // not yet
            KillTimer(nullptr, timer);
            pending(about);
            PostMessageW(about, WM_CLOSE, 0, 0);
        });
        program->Run(IDM_mnuHlpAbout);
    }
    [[nodiscard]] bool IsChecked(int command) const {
        return (GetMenuState(GetMenu(program->main.Handle()), static_cast<UINT>(command),
                             MF_BYCOMMAND) &
                MF_CHECKED) != 0;
    }

    Win32Files files;
    ScratchFolder folder;
    ScratchRegistry registry;
    Win32AnsiCodePage codePage{1252};
    std::unique_ptr<RealProgram> program;
};

TEST_F(LanguageSwitch, EveryTextOfTheFormsFollowsBackAndForth) {
    Start();
    for (const auto& [command, code] :
         {std::pair{IDM_mnuOptionsLngGerman, "de"}, std::pair{IDM_mnuOptionsLngEnglish, "us"},
          std::pair{IDM_mnuOptionsLngGerman, "de"}, std::pair{IDM_mnuOptionsLngGerman, "de"}}) {
        SCOPED_TRACE(code);
        program->Run(command);
        ExpectMenus(code);
        ExpectTitles(code);
        ExpectToolTips(code);
        ExpectLabels(code);
    }
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(LanguageSwitch, AboutHasItsTextsAndStandsInTheMiddleWheneverItOpens) {
    Start();
    for (const auto& [command, code] :
         {std::pair{IDM_mnuOptionsLngEnglish, "us"}, std::pair{IDM_mnuOptionsLngGerman, "de"}}) {
        SCOPED_TRACE(code);
        program->Run(command);
        bool isShown = false;
        LookAtAbout([&, code = std::string(code)](HWND about) {
            isShown = IsWindowVisible(about) != FALSE;
            for (const auto& [id, key] : {std::pair{IDC_lblDisclaimer, "lblDisclaimer.Caption"},
                                          std::pair{IDC_lblDescription, "lblDescription.Caption"},
                                          std::pair{IDC_cmdSysInfo, "cmdSysInfo.Caption"}})
                EXPECT_EQ(ToUtf8(TextOf(FindChild(about, id))), InFile(code, "frmAbout", key));
            RECT bounds{};
            GetWindowRect(about, &bounds);
            EXPECT_NEAR(bounds.left + bounds.right, GetSystemMetrics(SM_CXSCREEN), 2);
            EXPECT_NEAR(bounds.top + bounds.bottom, GetSystemMetrics(SM_CYSCREEN), 2);
        });
        EXPECT_TRUE(isShown);
    }
}

TEST_F(LanguageSwitch, ShortcutsInTheMenusAreNamedAsTheKeyboardsOfTheLanguageNameThem) {
    Start();
    const auto shortcut = [this](int command) {
        const std::string shown = MenuText(GetMenu(program->main.Handle()), command);
        return shown.substr(shown.find('\t') + 1);
    };
    program->Run(IDM_mnuOptionsLngGerman);
    EXPECT_EQ(shortcut(IDM_mnuFileNew), "Strg+N");
    EXPECT_EQ(shortcut(IDM_mnuFileSaveAs), "Strg+Umschalt+S");
    EXPECT_EQ(shortcut(IDM_mnuColorDelColor), "Entf");
    EXPECT_EQ(shortcut(IDM_mnuHlpShowReadme), "F1");
    program->Run(IDM_mnuOptionsLngEnglish);
    EXPECT_EQ(shortcut(IDM_mnuFileNew), "Ctrl+N");
    EXPECT_EQ(shortcut(IDM_mnuFileSaveAs), "Ctrl+Shift+S");
    EXPECT_EQ(shortcut(IDM_mnuColorDelColor), "Del");
}

TEST_F(LanguageSwitch, MessagesFollow) {
    Start();
    program->Run(IDM_mnuOptionsLngGerman);
    EXPECT_EQ(program->language.GetInfoText(0), "SolidWorks läuft nicht.");
    program->Run(IDM_mnuOptionsLngEnglish);
    EXPECT_EQ(program->language.GetInfoText(0), "SolidWorks is not running.");
}

TEST_F(LanguageSwitch, MarksShowTheOneLanguage) {
    Start();
    EXPECT_TRUE(IsChecked(IDM_mnuOptionsLngEnglish));
    program->Run(IDM_mnuOptionsLngGerman);
    EXPECT_TRUE(IsChecked(IDM_mnuOptionsLngGerman));
    EXPECT_FALSE(IsChecked(IDM_mnuOptionsLngEnglish));
    program->Run(IDM_mnuOptionsLngEnglish);
    EXPECT_FALSE(IsChecked(IDM_mnuOptionsLngGerman));
    EXPECT_TRUE(IsChecked(IDM_mnuOptionsLngEnglish));
}

TEST_F(LanguageSwitch, ActiveColorStaysAsItIs) {
    Start();
    const HWND main = program->main.Handle();
    const HWND red = FindChild(main, IDC_txtActiveColor);
    SetWindowTextW(red, L"17");
    program->main.View().editor.SetColorName("\"Ausnahme & Ω\"  ");
    program->Run(IDM_mnuOptionsLngGerman);
    EXPECT_EQ(TextOf(red), L"17");
    EXPECT_EQ(TextOf(FindChild(main, IDC_lblActiveColorName)), L"\"Ausnahme & Ω\"  ");
}

TEST_F(LanguageSwitch, LanguageNumberTwoLeavesTheBuiltInTexts) {
    registry.PutText("SOFTWARE\\Chromixs\\TNT4SWX", "Language", "2");
    Start();
    const HMENU bar = GetMenu(program->main.Handle());
    EXPECT_EQ(MenuText(bar, IDM_mnuOptionsConfirmDel), "Löschen immer bestätigen");
    EXPECT_FALSE(IsChecked(IDM_mnuOptionsLngGerman));
    EXPECT_FALSE(IsChecked(IDM_mnuOptionsLngEnglish));
    EXPECT_EQ(program->TextOfStop(), L"Stop");
    RenameAColor();
    EXPECT_EQ(MenuText(bar, IDM_mnuEditUndo), "&Rückgängig: Farbe umbenennen\tStrg+Z");
}

TEST_F(LanguageSwitch, MissingFileLeavesTheTextsOfTheLanguageBefore) {
    Start();
    DeleteFileW(ToUtf16(folder.File("tntlng_de.ini")).c_str());
    program->Run(IDM_mnuOptionsLngGerman);
    ExpectMenus("us");
    EXPECT_EQ(program->application.MainWindowEvents().hints.HintLines().at(0).text,
              "No library is open.");
    RenameAColor();
    EXPECT_EQ(MenuText(GetMenu(program->main.Handle()), IDM_mnuEditUndo),
              "&Undo Rename color\tCtrl+Z");
    EXPECT_EQ(program->language.GetInfoText(5), "INI file doesn't exists ");
    EXPECT_TRUE(IsChecked(IDM_mnuOptionsLngGerman));
}

TEST_F(LanguageSwitch, ProgressWindowIsShownInTheLanguageThatIsActiveThen) {
    Start();
    for (const auto& [command, text] : {std::pair{IDM_mnuOptionsLngGerman, L"&Stopp"},
                                        std::pair{IDM_mnuOptionsLngEnglish, L"&Stop"}}) {
        program->Run(command);
        EXPECT_EQ(program->TextOfStop(), text);
    }
}

TEST_F(LanguageSwitch, AlwaysOnTopIsTheStyleOfTheWindow) {
    Start();
    EXPECT_TRUE(IsTopmost(program->main.Handle()));
    EXPECT_TRUE(IsChecked(IDM_mnuOptionsAlwaysOnTop));
    program->Run(IDM_mnuOptionsAlwaysOnTop);
    EXPECT_FALSE(IsTopmost(program->main.Handle()));
    EXPECT_FALSE(IsChecked(IDM_mnuOptionsAlwaysOnTop));
    program->Run(IDM_mnuOptionsAlwaysOnTop);
    EXPECT_TRUE(IsTopmost(program->main.Handle()));
}

TEST_F(LanguageSwitch, WindowThatOpensLaterTakesTheCurrentPlaceAboveOthers) {
    Start();
    program->progress.ShowProgress("x", 0, 1);
    EXPECT_TRUE(IsTopmost(program->ProgressHandle()));
    program->progress.HideProgress();
    program->Run(IDM_mnuOptionsAlwaysOnTop);
    program->progress.ShowProgress("x", 0, 1);
    EXPECT_FALSE(IsTopmost(program->ProgressHandle()));
    program->progress.HideProgress();
}

TEST_F(LanguageSwitch, ViewerTakesTheCurrentPlaceAboveOthersEachTimeItIsShown) {
    Start();
    for (const bool onTop : {true, false, true}) {
        program->Run(IDM_mnuHlpShowReadme);
        EXPECT_NE(IsWindowVisible(program->textViewer.Handle()), FALSE);
        EXPECT_EQ(IsTopmost(program->textViewer.Handle()), onTop);
        SendMessageW(FindChild(program->textViewer.Handle(), IDC_cmdOkay), BM_CLICK, 0, 0);
        program->Run(IDM_mnuOptionsAlwaysOnTop);
    }
}

TEST_F(LanguageSwitch, OptionThatIsNotSavedIsGoneAtTheNextStart) {
    const std::string key = "SOFTWARE\\Chromixs\\TNT4SWX";
    Start().Run(IDM_mnuOptionsLngGerman);
    program->Run(IDM_mnuOptionsConfirmDel);
    program->Close();
    EXPECT_EQ(registry.Get(key, "Language").bytes, "(none)");
    Start();
    EXPECT_TRUE(IsChecked(IDM_mnuOptionsLngEnglish));
    EXPECT_TRUE(IsChecked(IDM_mnuOptionsConfirmDel));
    program->Run(IDM_mnuOptionsLngGerman);
    program->Run(IDM_mnuOptionsConfirmDel);
    program->Run(IDM_mnuOptionsSaveSettings);
    program->Close();
    EXPECT_EQ(registry.Get(key, "Language").bytes, std::string("0\0", 2));
    Start();
    EXPECT_TRUE(IsChecked(IDM_mnuOptionsLngGerman));
    EXPECT_FALSE(IsChecked(IDM_mnuOptionsConfirmDel));
}

TEST_F(LanguageSwitch, TemplateOfTheRealFormsHoldsTheirTextsInTheOrderOfTheirControls) {
    Start();
    clsMultiLanguage& language = program->language;
    language.SetNewIniFile(folder.File("template.ini"));
    language.GetAllControlText(program->main);
    const std::string text = folder.Read("template.ini");
    std::size_t before = 0;
    for (const char* line :
         {"[frmMain]\r\n", "\r\ntlbarMain.New.ToolTipText=New color\r\n",
          "\r\ntlbarMain.New.NewGroup.Text=New &group\r\n", "\r\ntvColor.ToolTipText=",
          "\r\nsldActiveColor.TypeName=Slider*** unbekannte Steuerelemente\r\n",
          "\r\nmnuFile.Caption=&File\r\n", "\r\nmnuOptionsHR.Caption=-\r\n"}) {
        const std::size_t found = text.find(line);
        EXPECT_NE(found, std::string::npos) << line;
        EXPECT_GE(found, before) << line;
        before = found;
    }
    EXPECT_EQ(text.find("[frmMain]", 1), std::string::npos);
    EXPECT_EQ(text.find(".sep"), std::string::npos) << "separators have no texts";
}

TEST_F(LanguageSwitch, TemplateServesAsALanguageFile) {
    Start();
    program->Run(IDM_mnuOptionsLngGerman);
    program->language.SetNewIniFile(folder.File("template.ini"));
    program->language.GetAllControlText(program->main);
    program->Run(IDM_mnuOptionsLngEnglish);
    program->language.SetIniFile(folder.File("template.ini"));
    program->language.SetAllControlText(program->main);
    ExpectMenus("de");
    ExpectToolTips("de");
}

class CodePages : public LanguageSwitch, public testing::WithParamInterface<unsigned> {
protected:
    CodePages() {
        codePage = GetParam() == 0 ? Win32AnsiCodePage() : Win32AnsiCodePage(GetParam());
    }
};

// 0: the system's own.
INSTANTIATE_TEST_SUITE_P(EveryPage, CodePages, testing::Values(0U, 1251U, 1253U, 65001U));

TEST_P(CodePages, BuiltInUmlautsStayWhereAKeyIsMissing) {
    folder.Write("tntlng_us.ini", "[frmMain]\r\nmnuFile.Caption=F\r\n");
    Start();
    const HMENU bar = GetMenu(program->main.Handle());
    EXPECT_EQ(MenuText(bar, IDM_mnuOptionsConfirmDel), "Löschen immer bestätigen");
    EXPECT_TRUE(MenuText(bar, IDM_mnuFileOpen).starts_with("Öffnen"));
}

TEST_F(LanguageSwitch, TextsOfTheFileAreReadInItsCodePage) {
    codePage = Win32AnsiCodePage(1251);
    folder.Write("tntlng_us.ini", "[frmMain]\r\nmnuHlpAbout.Caption=\xCE \xEF\xF0\xEE\xE3\xF0\xE0"
                                  "\xEC\xEC\xE5\r\n[Info]\r\nText.1=\xCD\xE5\xF2\r\n");
    Start();
    EXPECT_EQ(MenuText(GetMenu(program->main.Handle()), IDM_mnuHlpAbout), "О программе");
    EXPECT_EQ(program->language.GetInfoText(1), "Нет");
}

} // namespace
