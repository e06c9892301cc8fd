// Rules: SolidWorks session
#include "platform/ComApartment.h"
#include "platform/RunningObjects.h"
#include "platform/Utf16.h"
#include "tests/fakes/Dose.h"
#include "tests/fakes/FaultyCommands.h"
#include "tests/platform/PollUntil.h"
#include "tests/platform/StandInProcess.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>

// The program's commands on a stand-in in a process of its own, whose calls go wrong for real: it
// dies, or its message filter turns calls away.

namespace {

using namespace std::chrono_literals;
using StandInContract::Question;

class StandInFaults : public testing::TestWithParam<FaultyCommand> {
protected:
    [[nodiscard]] static std::wstring Switches() {
        return L"--scenario " + ToUtf16(GetParam().scenario);
    }
    [[nodiscard]] static std::unique_ptr<StandInProcess> StartStandIn() {
        return std::make_unique<StandInProcess>(Switches());
    }
    // The members that the command calls, in their order.
    [[nodiscard]] static std::vector<std::string> MembersCalled() {
        FaultyProgram program(GetParam());
        program.program.solidWorks.Log().Clear();
        program.Run();
        std::vector<std::string> members;
        for (const CallRecord& call : program.program.solidWorks.Log().Records())
            members.push_back(call.member);
        return members;
    }
    // The numbers of the calls that go wrong, from 1: spread over all of them, the first and the
    // last too.  In one process (SolidWorksFaults) it is always each of them.
    [[nodiscard]] std::vector<std::size_t> Calls() const {
        const auto count = std::min(members.size(), static_cast<std::size_t>(Dose("TNT_CALLS", 5)));
        std::vector<std::size_t> calls;
        for (std::size_t index = 0; index < count; ++index)
            calls.push_back(1 + index * (members.size() - 1) / std::max<std::size_t>(1, count - 1));
        return calls;
    }
    static void CheckNothingIsLeft(FaultyProgram& faulty, const StandInProcess& standIn) {
        EXPECT_FALSE(faulty.program.progress.isShown);
        EXPECT_TRUE(PollUntil([&] { return standIn.Ask(Question::LiveObjects) == 1; }))
            << "only the stand-in itself holds its application object";
    }
    // The same command without COM between, with the same fault; the words of an error may differ.
    static std::string RunNatively(FaultyProgram& native, const std::string& fault) {
        native.program.solidWorks.Gate().ClearFaults();
        native.program.solidWorks.Gate().AddFault(ParseFault(fault));
        return native.Run();
    }
    // Whether the user was told of a failure of this member, in whatever words.
    static bool Tells(const std::string& seen, const std::string& member) {
        return seen.starts_with("error: ") && seen.ends_with("(" + member + ")");
    }
    static void Print(std::size_t call, const std::string& member, const std::string& way,
                      const std::string& seen) {
        std::printf("%s %zu %s: %s: %s\n", GetParam().name, call, member.c_str(), way.c_str(),
                    seen.c_str());
    }

    ComApartment apartment;
    FakeWaitingClock clock;
    BusyRetry retry{clock};
    RunningObjects objects{retry};
    std::vector<std::string> members = MembersCalled();
};

TEST_P(StandInFaults, ServerThatDiesInAnyCall) {
    for (const std::size_t call : Calls()) {
        SCOPED_TRACE(members[call - 1]);
        auto standIn = StartStandIn();
        ASSERT_TRUE(standIn->IsReady());
        FaultyProgram faulty(GetParam(), &objects);
        ASSERT_TRUE(standIn->Order("clear-faults"));
        ASSERT_TRUE(standIn->Order("fault " + std::to_string(call) + ":die"));
        const std::string seen = faulty.Run();
        Print(call, members[call - 1], "dies", seen);
        EXPECT_TRUE(Tells(seen, members[call - 1]));
        EXPECT_EQ(standIn->WaitForEnd(), 3U);
        EXPECT_EQ(faulty.State(), StateOfRefusal(GetParam()));
        EXPECT_FALSE(faulty.program.progress.isShown);
        EXPECT_EQ(faulty.Run(), "note: <0>") << "SolidWorks is gone";
        standIn = StartStandIn();
        ASSERT_TRUE(standIn->IsReady());
        const std::string after = faulty.Run();
        EXPECT_TRUE(after == "status" || after == "nothing" || after.starts_with("levels:"))
            << after;
        CheckNothingIsLeft(faulty, *standIn);
    }
}

TEST_P(StandInFaults, EveryCallRejectedThenTakenOrNeverTaken) {
    const auto standIn = StartStandIn();
    ASSERT_TRUE(standIn->IsReady());
    FaultyProgram faulty(GetParam(), &objects);
    FaultyProgram native(GetParam());
    ASSERT_TRUE(standIn->Order("clear-faults"));
    const std::string clean = faulty.Run();
    native.Run();
    for (const std::size_t call : Calls())
        for (const char* way : {"busy:2", "retry-later:2", "busy:always", "retry-later:always"}) {
            SCOPED_TRACE(members[call - 1] + " " + way);
            const std::string fault = std::to_string(call) + ":" + way;
            ASSERT_TRUE(standIn->Order("clear-faults"));
            ASSERT_TRUE(standIn->Order("fault " + fault));
            const LRESULT rejected = standIn->Ask(Question::RejectedCalls);
            const auto start = clock.now;
            const std::string seen = faulty.Run();
            Print(call, members[call - 1], way, seen);
            if (std::string(way).ends_with("always")) {
                EXPECT_TRUE(Tells(seen, members[call - 1])) << seen;
                EXPECT_GE(clock.now - start, 30s);
                EXPECT_LT(clock.now - start, 31s);
            } else {
                EXPECT_EQ(seen, clean);
                EXPECT_EQ(standIn->Ask(Question::RejectedCalls), rejected + 2);
            }
            RunNatively(native, fault);
            EXPECT_EQ(faulty.State(), native.State());
            CheckNothingIsLeft(faulty, *standIn);
        }
    ASSERT_TRUE(standIn->Order("clear-faults"));
    EXPECT_EQ(faulty.Run(), clean);
}

TEST_P(StandInFaults, EveryCallThatFailsOrAnswersWrongly) {
    const auto standIn = StartStandIn();
    ASSERT_TRUE(standIn->IsReady());
    FaultyProgram faulty(GetParam(), &objects);
    FaultyProgram native(GetParam());
    for (const std::size_t call : Calls())
        for (const char* way :
             {"error:Out of paint", "null", "empty", "short-array", "text-array", "text"}) {
            SCOPED_TRACE(members[call - 1] + " " + way);
            const std::string fault = std::to_string(call) + ":" + way;
            ASSERT_TRUE(standIn->Order("clear-faults"));
            ASSERT_TRUE(standIn->Order("fault " + fault));
            EXPECT_EQ(faulty.Run(), RunNatively(native, fault)) << "as without COM between";
            EXPECT_EQ(faulty.State(), native.State());
            CheckNothingIsLeft(faulty, *standIn);
        }
}

INSTANTIATE_TEST_SUITE_P(Commands, StandInFaults,
                         testing::Values(FaultyCommandNamed("GetColor"),
                                         FaultyCommandNamed("GetColorOfAComponent"),
                                         FaultyCommandNamed("NewColorUpdate"),
                                         FaultyCommandNamed("SetColorOfTheDocument"),
                                         FaultyCommandNamed("ClearColorPart"),
                                         FaultyCommandNamed("SetStandardColor"),
                                         FaultyCommandNamed("ColorLevels"),
                                         FaultyCommandNamed("ColorLevelsOfAFaceOfAComponent")),
                         [](const auto& each) { return std::string(each.param.name); });

// All commands, one after the other, leave nothing behind in the other process.
TEST(StandInReferences, NoObjectIsHeldBetweenTwoCommands) {
    const ComApartment apartment;
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    RunningObjects objects(retry);
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    FaultyProgram program(FaultyCommandNamed("SetColorOfTheDocument"), &objects);
    for (const char* document : {"part", "assembly"}) {
        ASSERT_TRUE(standIn.Order(std::string("document ") + document));
        for (const int command :
             {IDM_mnuSWXGetColor, IDM_mnuSWXNewColorUpdate, IDM_mnuSWXSetColor,
              IDM_mnuSWXSetColorComponent, IDM_mnuSWXClearColorFromSelection,
              IDM_mnuSWXClearComponentColorFromSelection, IDM_mnuSWXClearColorPart,
              IDM_mnuSWXClearColorAssembly, IDM_mnuSWXGetStandardColor, IDM_mnuSWXSetStandardColor,
              IDM_mnuSWXColorLevels}) {
            program.program.Main().frame.RunCommand(command);
            EXPECT_TRUE(PollUntil([&] { return standIn.Ask(Question::LiveObjects) == 1; }))
                << document << " " << command;
        }
    }
}

TEST(StandInReferences, CommandsWorkAgainWithASolidWorksThatWasStartedAnew) {
    const ComApartment apartment;
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    RunningObjects objects(retry);
    FaultyProgram program(FaultyCommandNamed("SetColorOfTheDocument"), &objects);
    EXPECT_EQ(program.Run(), "note: <0>") << "never started";
    for (int start = 0; start < 2; ++start) {
        StandInProcess standIn;
        ASSERT_TRUE(standIn.IsReady());
        EXPECT_EQ(program.Run(), "status");
        EXPECT_EQ(standIn.Stop(), 0U) << "closed by its user";
        EXPECT_EQ(program.Run(), "note: <0>");
    }
}

} // namespace
