// Rules: The program as a whole
#include "common/BusyRetry.h"
#include "platform/ComApartment.h"
#include "platform/RunningObjects.h"
#include "platform/Win32WaitingClock.h"
#include "tests/fakes/Dose.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/ScratchRegistry.h"
#include "tests/platform/SourceFile.h"
#include "tests/platform/StandInProcess.h"
#include "tests/ui/HeldResources.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/RealProgram.h"

#include <algorithm>
#include <commctrl.h>
#include <cstdio>

namespace {

constexpr int kSamples = 10; // after the warm-up

// Texts, fonts, caches and the pools of the allocator are there after a few rounds.
constexpr int kWarmUp = 20;
constexpr int kCounts = 5; // at its end, with four rounds before each

// A leak of one block in every hundredth round would already be more.
constexpr std::size_t kHeapSlack = 16U * 1024U;
// Undo may keep the libraries of a few rounds, so that the warm-up fills it.
constexpr std::size_t kHistoryBytes = 16U * 1024U;
constexpr std::size_t kMemorySlack = 2048U * 1024U; // the allocator's pages come and go

int Rounds() {
    return Dose("TNT_ENDURANCE", 3 * kSamples);
}

void PrintRow(const char* what, int round, const HeldResources& held) {
    std::printf("| %s | %d | %lu | %lu | %lu | %zu | %zu |\n", what, round, held.handles, held.gdi,
                held.user, held.heapBytes / 1024, held.memory / 1024);
    std::fflush(stdout);
}

// What is held after the warm-up is held at every later moment, and no more.
class FlatLine {
public:
    explicit FlatLine(const char* what) : what_(what) {}

    void Add(int round, const HeldResources& held) {
        PrintRow(what_, round, held);
        if (round == 0) {
            first_ = held;
            return;
        }
        EXPECT_LE(held.handles, first_.handles) << what_ << " after " << round;
        EXPECT_LE(held.gdi, first_.gdi) << what_ << " after " << round;
        EXPECT_LE(held.user, first_.user) << what_ << " after " << round;
        EXPECT_LE(held.heapBytes, first_.heapBytes + kHeapSlack) << what_ << " after " << round;
        EXPECT_LE(held.memory, first_.memory + kMemorySlack) << what_ << " after " << round;
    }

private:
    const char* what_;
    HeldResources first_;
};

class Endurance : public testing::Test {
protected:
    Endurance() {
        for (const char* name : {"tntlng_de.ini", "tntlng_us.ini"})
            CopyFromSources("language", name);
        CopyFromSources("samples", "materials.tnt");
        folder.Write("palette.gpl", "GIMP Palette\nName: Suns\n255 204 77 Sun\n");
    }
    void CopyFromSources(const std::string& from, const std::string& name) {
        folder.Write(name, *files.ReadWhole(SourceFile("resources/" + from + "/" + name)));
    }
    RealProgram& Start(AutomationService* solidWorks = nullptr) {
        program = std::make_unique<RealProgram>(registry, folder.Path(), codePage, solidWorks, "",
                                                kHistoryBytes);
        program->application.Start();
        PumpMessages();
        return *program;
    }
    [[nodiscard]] HWND Tree() const { return FindChild(program->main.Handle(), IDC_tvColor); }
    [[nodiscard]] LRESULT NodeCount() const { return SendMessageW(Tree(), TVM_GETCOUNT, 0, 0); }
    void SelectLibrary() const {
        SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET,
                     SendMessageW(Tree(), TVM_GETNEXTITEM, TVGN_ROOT, 0));
    }

    void Open() const {
        program->prompts.chosenFiles.emplace_back(folder.File("materials.tnt"));
        program->prompts.answers.push_back(Answer::No); // not at every start
        program->Run(IDM_mnuFileOpen);
        ASSERT_GT(NodeCount(), 1);
    }

    // "old" and "gold" are the ends of words in the sample.
    void Find() const {
        program->Run(IDM_mnuEditFind);
        const HWND find = FindWindowW(L"frmFind", nullptr);
        SetWindowTextW(FindChild(find, IDC_txtFind), L"old");
        PumpMessages();
        ASSERT_GT(SendMessageW(FindChild(find, IDC_lvFind), LVM_GETITEMCOUNT, 0, 0), 0);
        SendMessageW(find, WM_CLOSE, 0, 0);
    }

    // A palette comes and a color is made; both are taken back.
    void ImportEditAndUndo() const {
        const LRESULT nodes = NodeCount();
        program->prompts.chosenFileSets.assign(1, {folder.File("palette.gpl")});
        program->Run(IDM_mnuFileImport);
        ASSERT_GT(NodeCount(), nodes);
        program->prompts.typed.assign(1, "Signal");
        program->Run(IDM_mnuColorNewColor);
        program->Run(IDM_mnuEditUndo);
        program->Run(IDM_mnuEditUndo);
        ASSERT_EQ(NodeCount(), nodes);
        program->prompts.questions.clear();
    }

    void Round() const {
        ASSERT_NO_FATAL_FAILURE(Open());
        ASSERT_NO_FATAL_FAILURE(Find());
        ASSERT_NO_FATAL_FAILURE(ImportEditAndUndo());
        SelectLibrary();
        program->Run(IDM_mnuFileSave);
        program->Run(IDM_mnuFileClose);
        ASSERT_EQ(NodeCount(), 0);
        ASSERT_EQ(program->prompts.messages.size(), 1U); // the question alone
        program->prompts.messages.clear();
        program->prompts.fileRequests.clear();
        PumpMessages();
    }

    // Rounds follow each other so quickly that timers and late painting are left out until a count,
    // which takes most of a second, lets them come: counts are part of the warm-up.
    template <typename Round>
    void WarmUp(int rounds, const Round& work) {
        for (int round = 0; round < rounds; ++round) {
            ASSERT_NO_FATAL_FAILURE(work(round));
            if (round + kCounts * 4 >= rounds && round % 4 == 3)
                static_cast<void>(HeldByThisProcess());
        }
    }

    // One after the other, each as the menu does.
    void WorkWithSolidWorks(int round) const {
        constexpr std::array kCommands = {IDM_mnuSWXGetColor, IDM_mnuSWXSetColor,
                                          IDM_mnuSWXClearColorFromSelection,
                                          IDM_mnuSWXClearColorPart};
        program->Run(kCommands.at(static_cast<std::size_t>(round) % kCommands.size()));
        ASSERT_EQ(program->prompts.messages.size(), 0U) << program->prompts.messages[0].prompt;
        PumpMessages();
    }

    Win32Files files;
    ScratchFolder folder;
    ScratchRegistry registry;
    Win32AnsiCodePage codePage{1252};
    std::unique_ptr<RealProgram> program;
};

TEST_F(Endurance, OpenFindImportEditUndoSaveAndCloseHoldNoMoreAfterManyRounds) {
    Start();
    ASSERT_NO_FATAL_FAILURE(WarmUp(kWarmUp, [this](int) { Round(); }));
    FlatLine client("open, find, import, edit, undo, save, close");
    client.Add(0, HeldByThisProcess());
    const int rounds = Rounds();
    for (int round = 1; round <= rounds; ++round) {
        ASSERT_NO_FATAL_FAILURE(Round());
        if (round % (rounds / kSamples) == 0)
            client.Add(round, HeldByThisProcess());
    }
}

TEST_F(Endurance, WorkWithSolidWorksHoldsNoMoreAfterManyOperationsOnEitherSide) {
    const ComApartment apartment;
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    Win32WaitingClock clock;
    BusyRetry retry(clock);
    RunningObjects running(retry);
    Start(&running);
    // The stand-in keeps the last calls for its list; it holds all of them that it will ever hold.
    ASSERT_NO_FATAL_FAILURE(WarmUp(10 * kWarmUp, [this](int round) { WorkWithSolidWorks(round); }));
    const LRESULT calls = standIn.Ask(StandInContract::Question::CallCount);
    FlatLine client("SolidWorks operations, program");
    FlatLine server("SolidWorks operations, stand-in");
    client.Add(0, HeldByThisProcess());
    server.Add(0, HeldByProcessOf(standIn.Window()));
    const int rounds = Rounds();
    for (int round = 1; round <= rounds; ++round) {
        ASSERT_NO_FATAL_FAILURE(WorkWithSolidWorks(round));
        if (round % (rounds / kSamples) == 0) {
            client.Add(round, HeldByThisProcess());
            server.Add(round, HeldByProcessOf(standIn.Window()));
        }
    }
    EXPECT_GE(standIn.Ask(StandInContract::Question::CallCount), calls + rounds);
}

} // namespace
