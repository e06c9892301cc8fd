// Rules: SolidWorks session
#include "tests/fakes/FaultyCommands.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <set>
#include <string_view>

// Every call of every command goes wrong in every way, once each, and the user meets it in the
// whole program.  Each test prints its runs as a table: for each call, what came of which way.

namespace {

using namespace std::chrono_literals;

using State = std::vector<std::string>;

struct Way {
    std::string_view fault;
    std::string_view name;

    bool operator==(const Way&) const = default;
};

constexpr Way kFails{"error:Out of paint", "fails"};
constexpr Way kDies{"die", "dies"};
constexpr Way kBusy{"busy:2", "busy, then accepted"};
constexpr Way kBusyForEver{"busy:always", "busy for ever"};
constexpr Way kNothing{"null", "Nothing"};
constexpr Way kEmpty{"empty", "empty"};
constexpr Way kShortArray{"short-array", "short array"};
constexpr Way kTextArray{"text-array", "array of texts"};
constexpr Way kText{"text", "text"};

constexpr std::array kWays{kFails, kDies,       kBusy,      kBusyForEver, kNothing,
                           kEmpty, kShortArray, kTextArray, kText};

using Names = std::set<std::string, std::less<>>;

// In which of the ways a call ends its command with an error; in the others the command goes on or
// finds that something is not there.  The sources of a color are probed one after the other, but
// for the document of Get color with nothing selected, whose color must be readable.  isOfLevels:
// all are probed, and the body is one of them.
Names ErrorsOf(const CallRecord& call, bool withSelection, bool isOfLevels) {
    static const Names objects{"ActiveDoc",    "GetSelectedObject3", "GetSelectedObjectsComponent",
                               "Body",         "FirstFeature",       "GetNextFeature",
                               "GetFirstFace", "GetNextFace",        "GetRootComponent",
                               "GetChildren"};
    static const Names probed{"MaterialPropertyValues", "GetMaterialPropertyValues"};
    static const Names probedObjects{"GetFeature", "GetModelDoc"};
    static const Names texts{"RevisionNumber", "GetNameAtIndex"};
    static const Names withoutAnswer{"Select",
                                     "ClearSelection",
                                     "EditRebuild",
                                     "SelectedFaceProperties",
                                     "SelectedFeatureProperties",
                                     "SetMaterialPropertyValues",
                                     "RemoveMaterialProperty",
                                     "SetColorRefAtIndex"};
    Names errors;
    const auto add = [&](const Way& way) { errors.emplace(way.name); };
    add(kDies);
    add(kBusyForEver);
    if (probedObjects.contains(call.member) || (isOfLevels && call.member == "Body"))
        return errors;
    const bool isProbed = (withSelection || isOfLevels) && call.kind == CallKind::Call &&
                          probed.contains(call.member);
    if (!isProbed)
        add(kFails);
    if (call.kind == CallKind::Put || withoutAnswer.contains(call.member))
        return errors;
    add(kShortArray);
    if (isProbed)
        return errors;
    add(kTextArray);
    if (!texts.contains(call.member))
        add(kText);
    if (!objects.contains(call.member)) {
        add(kNothing);
        add(kEmpty);
    }
    return errors;
}

// What a command does when nothing goes wrong.
struct CleanRun {
    explicit CleanRun(const FaultyCommand& command) {
        FaultyProgram program(command);
        program.program.solidWorks.Log().Clear();
        seen = program.Run();
        state = program.State();
        calls = program.program.solidWorks.Log().Lines();
        records = program.program.solidWorks.Log().Records();
        withSelection =
            std::ranges::find(records, "GetSelectedObject3", &CallRecord::member) != records.end();
    }

    std::string seen;
    State state;
    std::vector<std::string> calls;
    std::vector<CallRecord> records;
    bool withSelection = false;
};

std::string OnOneLine(std::string text) {
    for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos;)
        text.replace(at, 2, " ");
    return text;
}

class SolidWorksFaults : public testing::TestWithParam<FaultyCommand> {
protected:
    // Runs the command with one fault and gives what came of it: "done" (as without a fault),
    // "other end" (as when something is not there), "error" (a message that names the member of the
    // call), or what the user was told.
    std::string RunWith(std::size_t call, const Way& way) {
        SCOPED_TRACE("call " + std::to_string(call) + " " + clean.records[call - 1].member + ": " +
                     std::string(way.name));
        FaultyProgram faulty(GetParam());
        StandInModel& solidWorks = faulty.program.solidWorks;
        solidWorks.Gate().ClearFaults();
        solidWorks.Gate().AddFault(ParseFault(std::to_string(call) + ":" + std::string(way.fault)));
        solidWorks.Log().Clear();
        const auto start = faulty.program.clock.now;
        const std::string seen = faulty.Run();
        CheckTime(way, faulty.program.clock.now - start);
        CheckLeftBehind(faulty);
        const std::string outcome = OutcomeOf(seen, faulty.State(), clean.records[call - 1].member);
        if (way == kBusy) {
            EXPECT_EQ(solidWorks.Log().Lines(), clean.calls);
        }
        CheckNextCommand(faulty, solidWorks.Gate().IsDead());
        return outcome;
    }

private:
    std::string OutcomeOf(const std::string& seen, const State& state, const std::string& member) {
        if (seen == clean.seen)
            return state == clean.state ? "done" : "other end";
        EXPECT_EQ(state, refused) << "library and editor keep their state";
        const bool isError = seen.find("error: ") != std::string::npos; // perhaps after a question
        EXPECT_TRUE(!isError || seen.ends_with("(" + member + ")")) << seen;
        return isError ? "error" : OnOneLine(seen);
    }

    static void CheckTime(const Way& way, std::chrono::milliseconds waited) {
        const bool isBusyForEver = way == kBusyForEver;
        EXPECT_EQ(waited >= 30s, isBusyForEver);
        EXPECT_LT(waited, 31s) << "one limit for a call";
    }

    static void CheckLeftBehind(FaultyProgram& faulty) {
        EXPECT_FALSE(faulty.program.progress.isShown);
        EXPECT_EQ(faulty.program.solidWorks.Gate().LiveObjects(), 0U);
    }

    // The same command works when nothing goes wrong any more.
    void CheckNextCommand(FaultyProgram& faulty, bool isDead) {
        if (isDead) {
            EXPECT_EQ(faulty.Run(), "note: <0>") << "SolidWorks is gone";
        }
        faulty.program.solidWorks.Gate().ClearFaults(); // and started anew
        EXPECT_EQ(faulty.Run(), clean.seen);
        CheckLeftBehind(faulty);
    }

protected:
    CleanRun clean{GetParam()};
    State refused = StateOfRefusal(GetParam());
};

std::string Padded(std::string text, std::size_t width) {
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

TEST_P(SolidWorksFaults, EveryCallInEveryWay) {
    std::string table;
    for (std::size_t call = 1; call <= clean.records.size(); ++call) {
        std::map<std::string, std::string> columns; // by outcome, the ways that ended so
        Names errors;
        for (const Way& way : kWays) {
            const std::string outcome = RunWith(call, way);
            std::string& list = columns[outcome];
            list += (list.empty() ? "" : "; ") + std::string(way.name);
            if (outcome == "error")
                errors.emplace(way.name);
        }
        EXPECT_EQ(errors, ErrorsOf(clean.records[call - 1], clean.withSelection,
                                   GetParam().number == IDM_mnuSWXColorLevels))
            << clean.calls[call - 1];
        table += "\n" + std::to_string(call) + " " + clean.records[call - 1].member + "\n";
        for (const auto& [outcome, list] : columns)
            table += "    " + Padded(outcome + ":", 11) + list + "\n";
    }
    std::printf("%s\n", table.c_str());
}

INSTANTIATE_TEST_SUITE_P(Commands, SolidWorksFaults, testing::ValuesIn(FaultyCommands()),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace
