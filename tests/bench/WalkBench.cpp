#include "common/BusyRetry.h"
#include "common/ProgramNames.h"
#include "platform/ComApartment.h"
#include "platform/MessageLoop.h"
#include "platform/RunningObjects.h"
#include "platform/Utf16.h"
#include "platform/Win32WaitingClock.h"
#include "solidworks/ResultKey.h"
#include "solidworks/modSldTools.h"
#include "support/frmProgress.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeTexts.h"
#include "tests/platform/StandInProcess.h"
#include "tests/ui/RecordingErrorSink.h"

#include <algorithm>
#include <chrono>
#include <comdef.h>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <vector>
#include <wrl/client.h>

// Measures the walks over a whole part and a whole assembly, in a stand-in of its own process,
// beside a bare loop that makes the same calls and nothing else; the two take turns:
//
//     walk_bench.exe [ITEMS] [REPETITIONS]
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
    explicit BareObject(ComPtr<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}

    [[nodiscard]] explicit operator bool() const noexcept { return dispatch_ != nullptr; }

    [[nodiscard]] DISPID IdOf(const wchar_t* member) const {
        std::wstring name = member;
        LPOLESTR names = name.data();
        DISPID id = DISPID_UNKNOWN;
        Check(dispatch_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id));
        return id;
    }

    // reversed: the arguments, the last one first.
    _variant_t Call(DISPID id, std::vector<_variant_t> reversed = {}) const {
        DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
        _variant_t answer;
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

void BareWalkOfAPart() {
    const BareObject document = BareObject::Application().Object(L"ActiveDoc");
    document.Call(L"GetType");
    const BareObject body = document.Object(L"Body");
    document.Call(L"ClearSelection");
    body.Call(L"GetFaceCount");
    document.Call(L"GetFeatureCount");
    document.Call(L"FirstFeature"); // the part has none
    const DISPID clear = document.IdOf(L"SelectedFaceProperties");
    for (BareObject face = body.Object(L"GetFirstFace"); face; face = face.Object(L"GetNextFace")) {
        face.Call(L"Select", {_variant_t(false)});
        document.Call(clear, UsePartProperties());
    }
    document.Call(L"EditRebuild");
}

void BareWalkOfAnAssembly() {
    const BareObject application = BareObject::Application();
    application.Call(L"RevisionNumber");
    const BareObject document = application.Object(L"ActiveDoc");
    document.Call(L"GetType");
    document.Call(L"ClearSelection");
    const BareObject root = document.Object(L"GetActiveConfiguration").Object(L"GetRootComponent");
    const _variant_t children = root.Call(L"GetChildren");
    const auto* elements = static_cast<const VARIANT*>(children.parray->pvData);
    for (ULONG i = 0; i < children.parray->rgsabound[0].cElements; ++i)
        BareObject(elements[i].pdispVal).Call(L"RemoveMaterialProperty");
    document.Call(L"EditRebuild");
}

// The program's own walk, with its progress window and its event loop.
class ProgramWalk {
public:
    void Run(std::string (modSldTools::*operation)()) {
        if ((tools_.*operation)() != ResultKey::Okay)
            throw std::runtime_error("The walk did not end well");
    }

private:
    static constexpr std::chrono::milliseconds kPatience{300};

    Win32WaitingClock clock_;
    BusyRetry retry_{clock_};
    RunningObjects automation_{retry_};
    FakePrompts prompts_;
    FakeTexts texts_;
    RecordingErrorSink errors_;
    frmProgress progress_{nullptr, errors_, kPatience};
    Win32EventPump events_;
    bool stopFlag_ = false;
    modSldTools tools_{{automation_, retry_, prompts_, texts_, progress_, events_, stopFlag_}};
};

struct Cost {
    std::vector<double> seconds; // one for each repetition
    LRESULT calls = 0;
    LRESULT names = 0;
};

void Measure(const StandInProcess& standIn, const std::function<void()>& walk, Cost& cost) {
    const LRESULT calls = standIn.Ask(Question::CallCount);
    const LRESULT names = standIn.Ask(Question::NameLookups);
    const Clock::time_point start = Clock::now();
    walk();
    cost.seconds.push_back(std::chrono::duration<double>(Clock::now() - start).count());
    cost.calls = standIn.Ask(Question::CallCount) - calls;
    cost.names = standIn.Ask(Question::NameLookups) - names;
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void Print(const char* title, const char* way, const Cost& cost, int items) {
    const auto [least, most] = std::minmax_element(cost.seconds.begin(), cost.seconds.end());
    const auto perItem = [items](double seconds) { return 1000 * seconds / items; };
    std::printf("| %s | %s | %.4f | %.4f | %.3f | %.3f - %.3f |\n", title, way,
                static_cast<double>(cost.calls) / items, static_cast<double>(cost.names) / items,
                perItem(Median(cost.seconds)), perItem(*least), perItem(*most));
    std::fflush(stdout);
}

// False when the walk makes other calls than the bare loop.
bool Compare(const char* title, const std::string& scenario, int items, int repetitions,
             std::string (modSldTools::*operation)(), const std::function<void()>& bareWalk) {
    const StandInProcess standIn(L"--scenario " + ToUtf16(scenario), CallLogging::Off);
    if (!standIn.IsReady())
        throw std::runtime_error("The stand-in does not start");
    ProgramWalk program;
    Cost walk;
    Cost bare;
    std::vector<double> ratios;
    const auto runProgram = [&] {
        Measure(
            standIn, [&] { program.Run(operation); }, walk);
    };
    const auto runBare = [&] { Measure(standIn, bareWalk, bare); };
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        // Neither is always the one that comes first.
        const bool bareFirst = repetition % 2 != 0;
        (bareFirst ? std::function<void()>(runBare) : runProgram)();
        (bareFirst ? std::function<void()>(runProgram) : runBare)();
        ratios.push_back(walk.seconds.back() / bare.seconds.back());
    }
    Print(title, "program", walk, items);
    Print(title, "bare loop", bare, items);
    std::printf("| %s | program / bare loop | | | %.3f | %.3f - %.3f |\n", title, Median(ratios),
                *std::min_element(ratios.begin(), ratios.end()),
                *std::max_element(ratios.begin(), ratios.end()));
    return walk.calls == bare.calls && walk.names == bare.names;
}

bool Run(int items, int repetitions) {
    const ComApartment apartment;
    const std::string count = std::to_string(items);
    std::printf("%d items, %d repetitions\n"
                "| walk | way | calls per item | names per item | ms per item, median | "
                "least - most |\n| --- | --- | --- | --- | --- | --- |\n",
                items, repetitions);
    const bool partAgrees = Compare("part", "features=0,faces=" + count, items, repetitions,
                                    &modSldTools::SWXClearColorPart, BareWalkOfAPart);
    const bool assemblyAgrees = Compare("assembly", "components=" + count, items, repetitions,
                                        &modSldTools::SWXClearColorAssembly, BareWalkOfAnAssembly);
    if (!partAgrees || !assemblyAgrees)
        std::printf("The program does not make the calls of the bare loop.\n");
    return partAgrees && assemblyAgrees;
}

} // namespace

int main(int count, char** arguments) {
    try {
        const int items = count > 1 ? std::atoi(arguments[1]) : 10'000;
        return Run(items, count > 2 ? std::atoi(arguments[2]) : 5) ? 0 : 1;
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 2;
    }
}
