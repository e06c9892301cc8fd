// Rules: Stand-in for SolidWorks
#include "common/RuntimeError.h"
#include "platform/ComApartment.h"
#include "platform/DispatchObject.h"
#include "platform/RunningObjects.h"
#include "tests/fakes/FakeWaitingClock.h"
#include "tests/platform/PollUntil.h"
#include "tests/platform/StandInProcess.h"

#include <gtest/gtest.h>
#include <oleauto.h>

namespace {

using StandInContract::Question;

const std::vector<double> kNine{0.1, 0.2, 0.3, 128 / 255.0, 0.5, 0.6, 0.7, 0.8, 0.9};
constexpr const char* kClassName = "SldWorks.Application";

class StandInServerTest : public testing::Test {
protected:
    [[nodiscard]] AutomationObjectPtr Attach() { return objects.GetRunningObject(kClassName); }
    [[nodiscard]] AutomationObjectPtr FirstFace() {
        const AutomationObjectPtr document = Attach()->Get("ActiveDoc").AsObject();
        return document->Get("Body").AsObject()->Get("GetFirstFace").AsObject();
    }
    // The description of the error that reading the revision raises; empty when it raises none.
    [[nodiscard]] std::string ErrorOfReading(const AutomationObjectPtr& application,
                                             const std::string& member) {
        try {
            application->Get(member);
        } catch (const RuntimeError& error) {
            return error.Member() + ": " + error.Description();
        }
        return {};
    }

    ComApartment apartment;
    FakeWaitingClock clock;
    BusyRetry retry{clock};
    RunningObjects objects{retry};
};

TEST_F(StandInServerTest, ALateBoundClientAttachesAndReadsAndSetsAColor) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    const AutomationObjectPtr application = Attach();
    ASSERT_NE(application, nullptr);
    EXPECT_EQ(application->Get("RevisionNumber").AsString(), "12.5.0");
    const AutomationObjectPtr face = FirstFace();
    EXPECT_TRUE(face->Get("MaterialPropertyValues").IsEmpty());
    face->Put("MaterialPropertyValues", kNine);
    EXPECT_EQ(std::get<std::vector<double>>(face->Get("MaterialPropertyValues").data), kNine);
}

TEST_F(StandInServerTest, TheLogFileHoldsEveryCallInOrder) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    FirstFace()->Put("MaterialPropertyValues", kNine);
    EXPECT_EQ(standIn.LoggedCalls(),
              (std::vector<std::string>{
                  "call application ActiveDoc()",
                  "call document \"Housing.SLDPRT\" Body()",
                  "call body GetFirstFace()",
                  "put face \"Face 1\" MaterialPropertyValues = [0.10000000000000001, "
                  "0.20000000000000001, 0.29999999999999999, 0.50196078431372548, 0.5, "
                  "0.59999999999999998, 0.69999999999999996, 0.80000000000000004, "
                  "0.90000000000000002]",
              }));
    EXPECT_EQ(standIn.Ask(Question::CallCount), 4);
}

TEST_F(StandInServerTest, NamesAreFoundWhateverTheirLetterCase) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    EXPECT_EQ(Attach()->Get("REVISIONnumber").AsString(), "12.5.0");
    EXPECT_EQ(standIn.LoggedCalls(), std::vector<std::string>{"call application RevisionNumber()"});
}

TEST_F(StandInServerTest, AnUnknownMemberAndAFailingOneAreToldApart) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    EXPECT_NE(ErrorOfReading(Attach(), "Weight").find("80020006"), std::string::npos);
    ASSERT_TRUE(standIn.Order("fault 1:error:Out of paint"));
    EXPECT_EQ(ErrorOfReading(Attach(), "ActiveDoc"), "ActiveDoc: Out of paint");
}

TEST_F(StandInServerTest, AnAssignmentThatDoesNotNameItsValueIsRefused) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    CLSID classId{};
    Microsoft::WRL::ComPtr<IUnknown> running;
    DispatchPtr application;
    ASSERT_EQ(CLSIDFromProgID(L"SldWorks.Application", &classId), S_OK);
    ASSERT_EQ(GetActiveObject(classId, nullptr, &running), S_OK);
    ASSERT_EQ(running.As(&application), S_OK);
    std::wstring name = L"Visible";
    LPOLESTR names = name.data();
    DISPID id = 0;
    ASSERT_EQ(application->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    _variant_t value(true);
    DISPPARAMS parameters{&value, nullptr, 1, 0};
    EXPECT_EQ(application->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT,
                                  &parameters, nullptr, nullptr, nullptr),
              DISP_E_PARAMNOTFOUND);
    EXPECT_TRUE(standIn.LoggedCalls().empty()) << "and it is no call";
}

TEST_F(StandInServerTest, ItsRegistrationEndsWithTheSystemsSession) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    bool found = false;
    for (const auto& [root, path] : {std::pair{HKEY_CURRENT_USER, L"Software\\Classes\\"},
                                     std::pair{HKEY_CLASSES_ROOT, L""}}) {
        HKEY key = nullptr;
        if (RegOpenKeyExW(root, (std::wstring(path) + L"SldWorks.Application").c_str(), 0,
                          KEY_CREATE_SUB_KEY, &key) != ERROR_SUCCESS)
            continue;
        found = true;
        HKEY lasting = nullptr;
        EXPECT_EQ(RegCreateKeyExW(key, L"lasting", 0, nullptr, REG_OPTION_NON_VOLATILE,
                                  KEY_SET_VALUE, nullptr, &lasting, nullptr),
                  ERROR_CHILD_MUST_BE_VOLATILE);
        RegCloseKey(key);
    }
    EXPECT_TRUE(found);
}

TEST_F(StandInServerTest, AWrongColorArrayIsRefusedWithAnExplanation) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    try {
        FirstFace()->Put("MaterialPropertyValues", std::vector<double>(8));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Description(), "A colour is an array of 9 numbers, not of 8");
    }
}

TEST_F(StandInServerTest, FaultsReachTheClientAsTheyAre) {
    const StandInProcess standIn(L"--fault 1:null --fault 2:empty --fault 3:short-array "
                                 L"--fault 4:text-array --fault 5:text");
    ASSERT_TRUE(standIn.IsReady());
    const AutomationObjectPtr application = Attach();
    EXPECT_EQ(std::get<AutomationObjectPtr>(application->Get("ActiveDoc").data), nullptr);
    EXPECT_TRUE(application->Get("ActiveDoc").IsEmpty());
    const AutomationValue array = application->Get("ActiveDoc");
    EXPECT_EQ(std::get<std::vector<double>>(array.data).size(), 2U);
    const AutomationValue texts = application->Get("ActiveDoc");
    EXPECT_EQ(std::get<AutomationArray>(texts.data).size(), 9U);
    EXPECT_EQ(application->Get("ActiveDoc").AsString(), "not a number");
}

TEST_F(StandInServerTest, ABusyServerIsAskedAgainUntilItAnswers) {
    const StandInProcess standIn(L"--fault 1:busy:3");
    ASSERT_TRUE(standIn.IsReady());
    EXPECT_EQ(Attach()->Get("RevisionNumber").AsString(), "12.5.0");
    EXPECT_EQ(standIn.Ask(Question::RejectedCalls), 3);
    EXPECT_EQ(standIn.Ask(Question::CallCount), 1);
}

// As the server's message filter answers, and as programs that are in the middle of something do.
TEST_F(StandInServerTest, BothAnswersOfABusyServerReachTheClientAsTheyAre) {
    const StandInProcess standIn(L"--fault 1:busy:always --fault 2:retry-later:always");
    ASSERT_TRUE(standIn.IsReady());
    const AutomationObjectPtr application = Attach();
    const std::string rejected = ErrorOfReading(application, "RevisionNumber");
    EXPECT_NE(rejected.find("80010001"), std::string::npos) << rejected;
    EXPECT_EQ(standIn.Ask(Question::NameLookups), 0) << "turned away before it reached its object";
    ASSERT_TRUE(standIn.Order("clear-faults"));
    application->Get("RevisionNumber");
    ASSERT_TRUE(standIn.Order("fault 2:retry-later:always"));
    const std::string later = ErrorOfReading(application, "RevisionNumber");
    EXPECT_NE(later.find("8001010A"), std::string::npos) << later;
}

TEST_F(StandInServerTest, AServerThatDiesInACallIsGoneAndCanBeStartedAnew) {
    StandInProcess standIn(L"--fault 1:die");
    ASSERT_TRUE(standIn.IsReady());
    const AutomationObjectPtr application = Attach();
    EXPECT_NE(ErrorOfReading(application, "RevisionNumber"), "");
    EXPECT_EQ(standIn.WaitForEnd(), 3U);
    EXPECT_NE(ErrorOfReading(application, "RevisionNumber"), "");
    EXPECT_EQ(Attach(), nullptr);
    const StandInProcess next;
    ASSERT_TRUE(next.IsReady());
    EXPECT_EQ(Attach()->Get("RevisionNumber").AsString(), "12.5.0");
}

TEST_F(StandInServerTest, TheSameObjectHasTheSameIdentity) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    const AutomationObjectPtr application = Attach();
    const AutomationObjectPtr first = application->Get("ActiveDoc").AsObject();
    const LRESULT held = standIn.Ask(Question::LiveObjects);
    const AutomationObjectPtr second = application->Get("ActiveDoc").AsObject();
    EXPECT_EQ(standIn.Ask(Question::LiveObjects), held);
}

TEST_F(StandInServerTest, ReleasedObjectsAreNotKept) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    EXPECT_EQ(standIn.Ask(Question::LiveObjects), 1);
    {
        const AutomationObjectPtr face = FirstFace();
        EXPECT_GE(standIn.Ask(Question::LiveObjects), 2);
    }
    EXPECT_TRUE(PollUntil([&] { return standIn.Ask(Question::LiveObjects) == 1; }));
}

TEST_F(StandInServerTest, EveryNameLookupIsCounted) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    const AutomationObjectPtr application = Attach();
    application->Get("RevisionNumber");
    application->Get("RevisionNumber");
    EXPECT_EQ(standIn.Ask(Question::NameLookups), 1);
}

TEST_F(StandInServerTest, ClosingTheWindowEndsItAndTakesTheRegistrationAway) {
    StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    EXPECT_EQ(standIn.Stop(), 0U);
    EXPECT_EQ(Attach(), nullptr);
    CLSID classId{};
    EXPECT_TRUE(FAILED(CLSIDFromProgID(L"SldWorks.Application", &classId)));
}

// What a real installation has put into the registry; taken away afterwards.
class ForeignRegistration {
public:
    ForeignRegistration() {
        constexpr wchar_t id[] = L"{6A7B1E5C-3F0D-4D8B-9C55-0F3A2B1C4D5E}";
        RegSetKeyValueW(HKEY_CLASSES_ROOT, L"SldWorks.Application\\CLSID", nullptr, REG_SZ, id,
                        sizeof id);
        CLSIDFromString(id, &id_);
    }
    ForeignRegistration(const ForeignRegistration&) = delete;
    ForeignRegistration& operator=(const ForeignRegistration&) = delete;
    ~ForeignRegistration() { RegDeleteTreeW(HKEY_CLASSES_ROOT, L"SldWorks.Application"); }

    [[nodiscard]] bool IsThere() const {
        CLSID found{};
        return SUCCEEDED(CLSIDFromProgID(L"SldWorks.Application", &found)) && found == id_;
    }

private:
    CLSID id_{};
};

TEST_F(StandInServerTest, ARegistrationOfSomebodyElseIsUsedAndLeftAsItIs) {
    const ForeignRegistration foreign;
    ASSERT_TRUE(foreign.IsThere());
    StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    EXPECT_TRUE(foreign.IsThere());
    const AutomationObjectPtr application = Attach();
    ASSERT_NE(application, nullptr);
    EXPECT_EQ(application->Get("RevisionNumber").AsString(), "12.5.0");
    standIn.Stop();
    EXPECT_TRUE(foreign.IsThere());
}

} // namespace
