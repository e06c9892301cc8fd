// Rules: SolidWorks session
#include "platform/ComApartment.h"
#include "platform/RunningObjects.h"
#include "platform/Utf16.h"
#include "tests/fakes/FaultyCommands.h"
#include "tests/platform/StandInProcess.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using StandInContract::Question;

// Object and member of a line of the log, whatever was done with the member.
std::string MemberOf(const std::string& line) {
    const std::size_t verbEnd = line.find(' ') + 1;
    return line.substr(verbEnd, line.find(line.starts_with("put ") ? " = " : "(") - verbEnd);
}

class StandInNames : public testing::TestWithParam<FaultyCommand> {
protected:
    ComApartment apartment;
    FakeWaitingClock clock;
    BusyRetry retry{clock};
    RunningObjects objects{retry};
    StandInProcess standIn{L"--scenario " + ToUtf16(GetParam().scenario)};
};

TEST_P(StandInNames, ACommandLooksUpEachMemberOnceForEachObject) {
    ASSERT_TRUE(standIn.IsReady());
    FaultyProgram program(GetParam(), &objects);
    const std::size_t callsBefore = standIn.LoggedCalls().size();
    const LRESULT namesBefore = standIn.Ask(Question::NameLookups);
    program.Run();
    const std::vector<std::string> calls = standIn.LoggedCalls();
    ASSERT_GT(calls.size(), callsBefore);
    std::set<std::string> members;
    for (std::size_t call = callsBefore; call < calls.size(); ++call)
        members.insert(MemberOf(calls[call]));
    EXPECT_EQ(standIn.Ask(Question::NameLookups) - namesBefore,
              static_cast<LRESULT>(members.size()));
}

INSTANTIATE_TEST_SUITE_P(Commands, StandInNames, testing::ValuesIn(FaultyCommands()),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace
