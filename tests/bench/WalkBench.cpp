#include "common/BusyRetry.h"
#include "common/ProgramNames.h"
#include "platform/ComApartment.h"
#include "platform/RunningObjects.h"
#include "platform/Utf16.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32EventPump.h"
#include "platform/Win32WaitingClock.h"
#include "resources/controls.h"
#include "solidworks/ResultKey.h"
#include "solidworks/modSldTools.h"
#include "platform/Win32Ticker.h"
#include "support/windows/frmProgress.h"
#include "support/windows/PatientProgress.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeRegistry.h"
#include "tests/fakes/FakeTexts.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/StandInProcess.h"
#include "tests/ui/RealProgram.h"
#include "tests/ui/RecordingErrorSink.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <comdef.h>
#include <cstdio>
#include <numeric>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <vector>
#include <wrl/client.h>

// Measures the walks over a whole part and a whole assembly of so many faces or components, and the
// import of a table of so many standard colors with the whole main window, in a stand-in of its
// own process, beside a bare loop that makes the same calls and nothing else; the two take turns:
//
//     walk_bench.exe ITEMS
//
// Ends with 0 when the walks make as many calls and look up as many names for an item as their bare
// loops do, with 1 when they do not, and with 2 when nothing could be measured.
namespace {

using Clock = std::chrono::steady_clock;
using Microsoft::WRL::ComPtr;
using StandInContract::Question;

void Check(HRESULT result) {
    if (FAILED(result))
        throw std::runtime_error("A bare call failed");
}

// An object as a bare loop has it: the caller keeps the numbers of its members.
class BareObject {
public:
    // What all bare objects have asked for.
    static inline LRESULT calls = 0;
    static inline LRESULT names = 0;

    explicit BareObject(ComPtr<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}

    [[nodiscard]] explicit operator bool() const noexcept { return dispatch_ != nullptr; }

    [[nodiscard]] DISPID IdOf(const wchar_t* member) const {
        std::wstring name = member;
        LPOLESTR text = name.data();
        DISPID id = DISPID_UNKNOWN;
        ++names;
        Check(dispatch_->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id));
        return id;
    }

    // reversed: the arguments, the last one first.
    _variant_t Call(DISPID id, std::vector<_variant_t> reversed = {}) const {
        DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
        _variant_t answer;
        ++calls;
        Check(dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT,
                                DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters, &answer,
                                nullptr, nullptr));
        return answer;
    }
    _variant_t Call(const wchar_t* member, std::vector<_variant_t> reversed = {}) const {
        return Call(IdOf(member), std::move(reversed));
    }
    [[nodiscard]] BareObject Object(const wchar_t* member) const {
        return FromVariant(Call(member));
    }

    [[nodiscard]] static BareObject FromVariant(const _variant_t& value) {
        return BareObject(value.vt == VT_DISPATCH ? value.pdispVal : nullptr);
    }
    [[nodiscard]] static BareObject Application() {
        CLSID classId{};
        ComPtr<IUnknown> running;
        ComPtr<IDispatch> dispatch;
        Check(CLSIDFromProgID(ToUtf16(ProgramNames::SolidWorksClass).c_str(), &classId));
        Check(GetActiveObject(classId, nullptr, &running));
        Check(running.As(&dispatch));
        return BareObject(std::move(dispatch));
    }

private:
    ComPtr<IDispatch> dispatch_;
};

// As SelectedFaceProperties takes them, the last one first.
std::vector<_variant_t> UsePartProperties() {
    std::vector<_variant_t> arguments{_variant_t(L""), _variant_t(true)};
    arguments.resize(8, _variant_t(0.0));
    arguments.emplace_back(0L);
    return arguments;
}

// One step of a bare loop for each item that the program does.
class BareLoop {
public:
    virtual ~BareLoop() = default;
    // False when there is no item left.
    virtual bool Step() = 0;
};

class BareFaces final : public BareLoop {
public:
    // Some faces ahead of the program, so that the two never share an object.
    BareFaces() {
        for (int i = 0; i < 5; ++i)
            face_ = face_.Object(L"GetNextFace");
    }
    bool Step() override {
        if (!face_)
            return false;
        face_.Call(L"Select", {_variant_t(false)});
        document_.Call(clear_, UsePartProperties());
        face_ = face_.Object(L"GetNextFace");
        return true;
    }

private:
    BareObject document_ = BareObject::Application().Object(L"ActiveDoc");
    DISPID clear_ = document_.IdOf(L"SelectedFaceProperties");
    BareObject face_ = document_.Object(L"Body").Object(L"GetFirstFace");
};

class BareComponents final : public BareLoop {
public:
    bool Step() override {
        if (next_ == children_.parray->rgsabound[0].cElements)
            return false;
        const auto* elements = static_cast<const VARIANT*>(children_.parray->pvData);
        BareObject(elements[next_++].pdispVal).Call(L"RemoveMaterialProperty");
        return true;
    }

private:
    _variant_t children_ = BareObject::Application()
                               .Object(L"ActiveDoc")
                               .Object(L"GetActiveConfiguration")
                               .Object(L"GetRootComponent")
                               .Call(L"GetChildren");
    ULONG next_ = 0;
};

class BareEntries final : public BareLoop {
public:
    bool Step() override {
        if (next_ == count_)
            return false;
        table_.Call(name_, {_variant_t(next_)});
        table_.Call(color_, {_variant_t(next_)});
        ++next_;
        return true;
    }

private:
    BareObject table_ = BareObject::Application().Object(L"ActiveDoc").Object(L"GetColorTable");
    DISPID name_ = table_.IdOf(L"GetNameAtIndex");
    DISPID color_ = table_.IdOf(L"GetColorRefAtIndex");
    long count_ = static_cast<long>(table_.Call(L"GetStandardCount"));
    long next_ = 0;
};

// What the stand-in was asked for.
struct Counts {
    LRESULT calls = 0;
    LRESULT names = 0;

    [[nodiscard]] static Counts OfBareObjects() { return {BareObject::calls, BareObject::names}; }
    // By all clients of the stand-in but the bare objects.
    [[nodiscard]] static Counts OfProgram(const StandInProcess& standIn) {
        return Counts{standIn.Ask(Question::CallCount), standIn.Ask(Question::NameLookups)} -
               OfBareObjects();
    }
    Counts operator-(const Counts& other) const {
        return {calls - other.calls, names - other.names};
    }
    Counts operator*(LRESULT times) const { return {calls * times, names * times}; }
    bool operator==(const Counts&) const = default;
};

// The program's event loop, which it runs before every item; the bare loop has its turn after it.
class TakingTurns final : public EventPump {
public:
    TakingTurns(BareLoop& loop, const StandInProcess& standIn, int items)
        : loop_(loop), standIn_(standIn), items_(items) {}

    void ProcessPendingEvents() override {
        events_.ProcessPendingEvents();
        const Clock::time_point programEnd = Clock::now();
        const bool hasStepped = loop_.Step();
        const Clock::time_point bareEnd = Clock::now();
        // The first turn of the program is what comes before the items.
        if (turn_ > 0 && hasStepped) {
            program.push_back(Milliseconds(programEnd - programStart_).count());
            bare.push_back(Milliseconds(bareEnd - programEnd).count());
        }
        steps_ += hasStepped ? 1 : 0;
        Count();
        ++turn_;
        programStart_ = Clock::now();
    }

    // Whether one item costs the program the same calls and names as one step of the bare loop.
    // The first item does not count: with it the program looks up the document's member once.
    [[nodiscard]] bool CostTheSame() const {
        const Counts stepsCost = Counts::OfBareObjects() - bareBefore_;
        return turn_ == items_ && (last_ - second_) * steps_ == stepsCost * (items_ - 2);
    }

    bool ProcessEventsWithoutInput() override { return events_.ProcessEventsWithoutInput(); }

    // What the program has done since its last turn, in milliseconds.
    [[nodiscard]] double SinceLastTurn() const {
        return Milliseconds(Clock::now() - programStart_).count();
    }

    std::vector<double> program; // milliseconds, one for each item
    std::vector<double> bare;

private:
    using Milliseconds = std::chrono::duration<double, std::milli>;

    void Count() {
        if (turn_ == 1)
            second_ = Counts::OfProgram(standIn_);
        if (turn_ == items_ - 1)
            last_ = Counts::OfProgram(standIn_);
    }

    Win32EventPump events_;
    BareLoop& loop_;
    const StandInProcess& standIn_;
    int items_;
    int turn_ = 0;
    int steps_ = 0;
    Counts bareBefore_ = Counts::OfBareObjects(); // what the loop needed before its first step
    Counts second_;                               // before the second item
    Counts last_;                                 // before the last one
    Clock::time_point programStart_;
};

// The program's own walk, with its progress window.
void Walk(std::string (modSldTools::*operation)(), EventPump& events) {
    constexpr std::chrono::milliseconds patience(300);
    Win32WaitingClock clock;
    BusyRetry retry(clock);
    RunningObjects automation(retry);
    FakePrompts prompts;
    FakeTexts texts;
    RecordingErrorSink errors;
    Win32Ticker ticker(errors);
    ProgressOnDemand window(nullptr, errors);
    PatientProgress progress(window, ticker, clock, patience);
    bool stopFlag = false;
    modSldTools tools({automation, retry, prompts, texts, progress, events, stopFlag});
    if ((tools.*operation)() != ResultKey::Okay)
        throw std::runtime_error("The walk did not end well");
}

// The program's own import, with its windows.  Gives what follows the last entry, in milliseconds.
double Import(TakingTurns& turns) {
    Win32WaitingClock clock;
    BusyRetry retry(clock);
    RunningObjects automation(retry);
    FakeRegistry registry;
    const Win32AnsiCodePage codePage;
    const ScratchFolder folder; // without language files
    RealProgram program(registry, folder.Path(), codePage, &automation);
    program.application.Start();
    program.prompts.typed = {"Library", ""};
    program.Run(IDM_mnuColorNewMainNode);
    program.events.onEvents = [&turns] { turns.ProcessPendingEvents(); };
    program.Run(IDM_mnuSWXGetStandardColor);
    const double rest = turns.SinceLastTurn();
    if (!program.prompts.messages.empty())
        throw std::runtime_error("The import did not end well");
    return rest;
}

double Sum(const std::vector<double>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0);
}

// The value below which this share of all values lies.
double Quantile(std::vector<double> values, double share) {
    const auto at = values.begin() +
                    static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

// Without the slowest tenth: what the machine did meanwhile.
double MeanOfFastest(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    values.resize(values.size() * 9 / 10);
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

void Print(const char* title, const char* way, const Counts& counts,
           const std::vector<double>& times, int items) {
    std::printf("| %s | %s | %.3f | %.3f | %.3f | %.3f - %.3f | %.3f |\n", title, way,
                static_cast<double>(counts.calls) / items,
                static_cast<double>(counts.names) / items, Quantile(times, 0.5),
                Quantile(times, 0.1), Quantile(times, 0.9), MeanOfFastest(times));
}

// Whether the walk makes no more calls than the bare loop.
template <class Bare>
[[nodiscard]] bool Compare(const char* title, const std::string& scenario, int items,
                           std::string (modSldTools::*operation)()) {
    const StandInProcess standIn(L"--scenario " + ToUtf16(scenario), CallLogging::Off);
    if (!standIn.IsReady())
        throw std::runtime_error("The stand-in does not start");
    BareObject::calls = BareObject::names = 0;
    Bare bare;
    TakingTurns turns(bare, standIn, items);
    const Clock::time_point start = Clock::now();
    Walk(operation, turns);
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    Print(title, "program", Counts::OfProgram(standIn), turns.program, items);
    Print(title, "bare loop", Counts::OfBareObjects(), turns.bare, items);
    std::printf("| %s | program / bare loop | | | %.3f | | %.3f |\n", title,
                Quantile(turns.program, 0.5) / Quantile(turns.bare, 0.5),
                MeanOfFastest(turns.program) / MeanOfFastest(turns.bare));
    std::printf("(%zu turns each, both in %.0f s)\n", turns.program.size(), seconds);
    if (!turns.CostTheSame())
        std::printf("The walk over the %s and its bare loop differ in calls or names\n", title);
    std::fflush(stdout);
    return turns.CostTheSame();
}

// As above, for the import as a whole.
[[nodiscard]] bool CompareImport(int items) {
    const StandInProcess standIn(L"--scenario standard-colors=" + std::to_wstring(items),
                                 CallLogging::Off);
    if (!standIn.IsReady())
        throw std::runtime_error("The stand-in does not start");
    BareObject::calls = BareObject::names = 0;
    BareEntries bare;
    TakingTurns turns(bare, standIn, items);
    const double rest = Import(turns);
    Print("import", "program", Counts::OfProgram(standIn), turns.program, items);
    Print("import", "bare loop", Counts::OfBareObjects(), turns.bare, items);
    std::printf("| import | program / bare loop | | | %.3f | | %.3f |\n",
                Quantile(turns.program, 0.5) / Quantile(turns.bare, 0.5),
                MeanOfFastest(turns.program) / MeanOfFastest(turns.bare));
    std::printf("(whole import / bare loop: %.3f; %.1f ms after the last entry)\n",
                (Sum(turns.program) + rest) / Sum(turns.bare), rest);
    std::fflush(stdout);
    return turns.CostTheSame();
}

[[nodiscard]] bool Run(int items) {
    const ComApartment apartment;
    const std::string count = std::to_string(items);
    std::printf("| walk | way | calls per item | names per item | ms per item, median | "
                "tenth - ninth tenth | mean without the slowest tenth |\n"
                "| --- | --- | --- | --- | --- | --- | --- |\n");
    const bool partIsSame = Compare<BareFaces>("part", "features=0,faces=" + count, items,
                                               &modSldTools::SWXClearColorPart);
    const bool assemblyIsSame = Compare<BareComponents>("assembly", "components=" + count, items,
                                                        &modSldTools::SWXClearColorAssembly);
    const bool importIsSame = CompareImport(items);
    return partIsSame && assemblyIsSame && importIsSame;
}

// Enough for the bare loop that runs ahead; no more than the stand-in makes.
constexpr int kFewest = 10;
constexpr int kMost = 1'000'000;

// Nothing for what is no number or one outside the range.
std::optional<int> ReadItems(std::string_view text) {
    int items = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), items);
    if (error != std::errc() || end != text.data() + text.size() || items < kFewest ||
        items > kMost)
        return std::nullopt;
    return items;
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::optional<int> items = count == 2 ? ReadItems(arguments[1]) : std::nullopt;
        if (items)
            return Run(*items) ? 0 : 1;
        std::printf("usage: walk_bench ITEMS    (%d to %d)\n", kFewest, kMost);
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
    }
    return 2;
}
