// Rules: SolidWorks session
#include "platform/DispatchObject.h"

#include "common/RuntimeError.h"
#include "tests/fakes/FakeWaitingClock.h"
#include "tests/platform/FakeDispatch.h"

#include <gtest/gtest.h>

namespace {

FakeDispatch::Answer Fails(HRESULT error) {
    return [error](VARIANT*, EXCEPINFO*) { return error; };
}

class DispatchObjectTest : public testing::Test {
protected:
    ~DispatchObjectTest() override {
        object.reset();
        fake.calls.clear();
        EXPECT_EQ(fake.References(), 0U);
    }

    RuntimeError ErrorOf(const std::string& member) {
        try {
            object->Get(member);
        } catch (const RuntimeError& error) {
            return error;
        }
        return {0, "no error"};
    }

    FakeDispatch fake;
    FakeWaitingClock clock;
    BusyRetry retry{clock};
    AutomationObjectPtr object = std::make_shared<DispatchObject>(&fake, retry);
};

} // namespace

TEST_F(DispatchObjectTest, PropertyIsReadAsMethodOrProperty) {
    fake.members[L"GetType"] = FakeDispatch::Returns(2L);
    EXPECT_EQ(object->Get("GetType").AsInt32(), 2);
    EXPECT_EQ(fake.calls.at(0).kind, DISPATCH_METHOD | DISPATCH_PROPERTYGET);
    EXPECT_TRUE(fake.calls.at(0).arguments.empty());
    EXPECT_TRUE(fake.calls.at(0).namedArguments.empty());
}

TEST_F(DispatchObjectTest, EveryResultOfAProgramThatIsGoneIsALostConnection) {
    for (const HRESULT result :
         {RPC_E_DISCONNECTED, RPC_E_SERVER_DIED, RPC_E_SERVER_DIED_DNE, RPC_E_CONNECTION_TERMINATED,
          CO_E_OBJNOTCONNECTED, HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE),
          HRESULT_FROM_WIN32(RPC_S_CALL_FAILED), HRESULT_FROM_WIN32(RPC_S_CALL_FAILED_DNE)}) {
        fake.members[L"GetType"] = Fails(result);
        EXPECT_EQ(ErrorOf("GetType").Number(), ErrorNumber::ConnectionLost) << std::hex << result;
    }
    for (const HRESULT result : {E_FAIL, E_POINTER, DISP_E_TYPEMISMATCH}) {
        fake.members[L"GetType"] = Fails(result);
        EXPECT_EQ(ErrorOf("GetType").Number(), ErrorNumber::Automation) << std::hex << result;
    }
}

TEST_F(DispatchObjectTest, ArgumentsArePassedLastOneFirst) {
    fake.members[L"Select"] = {};
    object->Invoke("Select", {std::int32_t{1}, "two", 3.0});
    const std::vector<_variant_t>& arguments = fake.calls.at(0).arguments;
    ASSERT_EQ(arguments.size(), 3U);
    EXPECT_EQ(arguments[0], _variant_t(3.0));
    EXPECT_EQ(arguments[1], _variant_t(L"two"));
    EXPECT_EQ(arguments[2], _variant_t(1L));
}

TEST_F(DispatchObjectTest, AssignmentNamesItsValueAndWantsNoResult) {
    fake.members[L"Visible"] = {};
    object->Put("Visible", true);
    const FakeDispatch::Call& call = fake.calls.at(0);
    EXPECT_EQ(call.kind, DISPATCH_PROPERTYPUT);
    EXPECT_EQ(call.namedArguments, std::vector<DISPID>{DISPID_PROPERTYPUT});
    EXPECT_EQ(call.arguments.at(0), _variant_t(true));
    EXPECT_FALSE(call.resultWanted);
}

TEST_F(DispatchObjectTest, ColorValuesAreAssignedAsAnArrayOfDoubles) {
    fake.members[L"MaterialPropertyValues"] = {};
    object->Put("MaterialPropertyValues", std::vector<double>{128 / 255.0, 0.5});
    const _variant_t& value = fake.calls.at(0).arguments.at(0);
    ASSERT_EQ(value.vt, VT_ARRAY | VT_R8);
    EXPECT_EQ(static_cast<double*>(value.parray->pvData)[0], 128 / 255.0);
}

TEST_F(DispatchObjectTest, NameIsResolvedOncePerObject) {
    fake.members[L"ActiveDoc"] = {};
    fake.members[L"Visible"] = {};
    object->Get("ActiveDoc");
    object->Get("ActiveDoc");
    object->Put("ActiveDoc", 1.0);
    EXPECT_EQ(fake.nameQueries, 1);
    object->Get("Visible");
    EXPECT_EQ(fake.nameQueries, 2);
}

TEST_F(DispatchObjectTest, ReturnedObjectIsCallableAndHeldOnlyAsLongAsItIsUsed) {
    FakeDispatch document;
    document.members[L"GetType"] = FakeDispatch::Returns(1L);
    fake.members[L"ActiveDoc"] = [&](VARIANT* result, EXCEPINFO*) {
        result->vt = VT_DISPATCH;
        return document.QueryInterface(IID_PPV_ARGS(&result->pdispVal));
    };
    {
        const AutomationObjectPtr returned = object->Get("ActiveDoc").AsObject();
        EXPECT_EQ(document.References(), 1U);
        EXPECT_EQ(returned->Get("GetType").AsInt32(), 1);
    }
    EXPECT_EQ(document.References(), 0U);
}

TEST_F(DispatchObjectTest, ObjectOfTheOtherSideIsPassedBackItself) {
    FakeDispatch face;
    fake.members[L"Select"] = {};
    object->Invoke("Select", {AutomationObjectPtr(std::make_shared<DispatchObject>(&face, retry))});
    EXPECT_EQ(fake.calls.at(0).arguments.at(0).pdispVal, &face);
    fake.calls.clear();
    EXPECT_EQ(face.References(), 0U);
}

TEST_F(DispatchObjectTest, NothingIsPassedAsANullInterface) {
    fake.members[L"Select"] = {};
    object->Invoke("Select", {AutomationObjectPtr()});
    EXPECT_EQ(fake.calls.at(0).arguments.at(0).vt, VT_DISPATCH);
    EXPECT_EQ(fake.calls.at(0).arguments.at(0).pdispVal, nullptr);
}

TEST_F(DispatchObjectTest, UnknownMemberIsAnErrorThatNamesIt) {
    const RuntimeError error = ErrorOf("NoSuchThing");
    EXPECT_EQ(error.Number(), ErrorNumber::Automation);
    EXPECT_EQ(error.Member(), "NoSuchThing");
    EXPECT_TRUE(error.Description().ends_with("(80020006)")) << error.Description();
}

TEST_F(DispatchObjectTest, FailedCallGivesTheSystemsWords) {
    fake.members[L"EditRebuild"] = Fails(E_ACCESSDENIED);
    const RuntimeError error = ErrorOf("EditRebuild");
    EXPECT_EQ(error.Number(), ErrorNumber::Automation);
    EXPECT_EQ(error.Member(), "EditRebuild");
    EXPECT_TRUE(error.Description().ends_with("(80070005)")) << error.Description();
}

TEST_F(DispatchObjectTest, ExceptionGivesTheOtherSidesOwnWords) {
    fake.members[L"EditRebuild"] = [](VARIANT*, EXCEPINFO* exception) {
        exception->bstrDescription = SysAllocString(L"The part is read-only: \u00FC");
        exception->bstrSource = SysAllocString(L"source");
        return DISP_E_EXCEPTION;
    };
    EXPECT_EQ(ErrorOf("EditRebuild").Description(), "The part is read-only: \xC3\xBC");
}

TEST_F(DispatchObjectTest, WordsThatTheOtherSideDefersAreAskedFor) {
    fake.members[L"EditRebuild"] = [](VARIANT*, EXCEPINFO* exception) {
        exception->pfnDeferredFillIn = [](EXCEPINFO* info) -> HRESULT {
            info->bstrDescription = SysAllocString(L"deferred");
            return S_OK;
        };
        return DISP_E_EXCEPTION;
    };
    EXPECT_EQ(ErrorOf("EditRebuild").Description(), "deferred");
}

TEST_F(DispatchObjectTest, ExceptionWithoutWordsGivesTheSystemsWordsForItsCode) {
    fake.members[L"EditRebuild"] = [](VARIANT*, EXCEPINFO* exception) {
        exception->scode = E_ACCESSDENIED;
        return DISP_E_EXCEPTION;
    };
    const std::string description = ErrorOf("EditRebuild").Description();
    EXPECT_TRUE(description.ends_with("(80070005)")) << description;
}

TEST_F(DispatchObjectTest, BusyOtherSideIsAskedAgainAtEveryStep) {
    fake.members[L"GetType"] = FakeDispatch::Returns(2L);
    fake.busyAnswers = 3;
    EXPECT_EQ(object->Get("GetType").AsInt32(), 2);
    fake.busyAnswers = 2;
    fake.busyResult = RPC_E_SERVERCALL_RETRYLATER;
    EXPECT_EQ(object->Get("GetType").AsInt32(), 2);
    EXPECT_EQ(clock.waits.size(), 5U);
}

TEST_F(DispatchObjectTest, OtherSideThatStaysBusyIsAnErrorAfterThirtySeconds) {
    fake.members[L"GetType"] = FakeDispatch::Returns(2L);
    object->Get("GetType");
    fake.busyAnswers = 1000000;
    const RuntimeError error = ErrorOf("GetType");
    EXPECT_TRUE(error.Description().ends_with("(80010001)")) << error.Description();
    EXPECT_EQ(error.Member(), "GetType");
    EXPECT_GE(clock.now, std::chrono::seconds(35));
}

TEST_F(DispatchObjectTest, ResolvingTheNameAndTheCallShareTheThirtySeconds) {
    fake.members[L"GetType"] = [this](VARIANT*, EXCEPINFO*) {
        fake.busyAnswers = 1000000; // busy again as soon as the name was told
        return RPC_E_CALL_REJECTED;
    };
    fake.busyAnswers = 100; // 20 seconds until the name is told
    const auto start = clock.now;
    ErrorOf("GetType");
    EXPECT_GE(clock.now - start, std::chrono::seconds(30));
    EXPECT_LT(clock.now - start, std::chrono::seconds(31));
}

TEST_F(DispatchObjectTest, UserCanStopWaitingForABusyOtherSide) {
    fake.members[L"GetType"] = FakeDispatch::Returns(2L);
    fake.busyAnswers = 1000000;
    const StoppableCalls stoppable(retry, [this] { return clock.waits.size() == 4; });
    EXPECT_THROW(object->Get("GetType"), OperationStopped);
}

TEST_F(DispatchObjectTest, AnswerThatCannotBeTakenIsAnErrorThatNamesTheMember) {
    fake.members[L"GetChildren"] = [](VARIANT* result, EXCEPINFO*) {
        SAFEARRAYBOUND bounds[2] = {{2, 0}, {2, 0}};
        result->vt = VT_ARRAY | VT_R8;
        result->parray = SafeArrayCreate(VT_R8, 2, bounds);
        return S_OK;
    };
    const RuntimeError error = ErrorOf("GetChildren");
    EXPECT_EQ(error.Number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error.Member(), "GetChildren");
}

TEST_F(DispatchObjectTest, ArgumentThatCannotBeSentIsAnErrorThatNamesTheMember) {
    class Foreign : public AutomationObject {
        AutomationValue Invoke(const std::string&, const AutomationArray&) override { return {}; }
        void Put(const std::string&, const AutomationValue&) override {}
    };
    fake.members[L"Select"] = {};
    const AutomationObjectPtr foreign = std::make_shared<Foreign>();
    for (const std::function<void()>& call :
         {std::function<void()>([&] { object->Invoke("Select", {foreign}); }),
          std::function<void()>([&] { object->Put("Select", foreign); })})
        try {
            call();
            FAIL();
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Member(), "Select");
        }
    EXPECT_TRUE(fake.calls.empty());
}

TEST_F(DispatchObjectTest, OtherFailuresAreNotRepeated) {
    fake.members[L"GetType"] = Fails(static_cast<HRESULT>(0x800706BA)); // the other side is gone
    ErrorOf("GetType");
    EXPECT_EQ(fake.calls.size(), 1U);
    EXPECT_TRUE(clock.waits.empty());
}
