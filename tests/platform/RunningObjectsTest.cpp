// Rules: SolidWorks session
#include "platform/RunningObjects.h"

#include "platform/ComApartment.h"
#include "tests/fakes/FakeWaitingClock.h"
#include "tests/platform/FakeDispatch.h"
#include "tests/platform/ScratchClass.h"

#include <gtest/gtest.h>

namespace {

// Stands in the running-object table as the class's active object.
class Registration {
public:
    Registration(IUnknown* object, const CLSID& classId) {
        RegisterActiveObject(object, classId, ACTIVEOBJECT_STRONG, &cookie_);
    }
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;
    ~Registration() { RevokeActiveObject(cookie_, nullptr); }

private:
    DWORD cookie_ = 0;
};

class RunningObjectsTest : public testing::Test {
protected:
    ComApartment apartment;
    FakeWaitingClock clock;
    BusyRetry retry{clock};
    RunningObjects objects{retry};
};

} // namespace

TEST_F(RunningObjectsTest, UnknownClassGivesNothing) {
    EXPECT_EQ(objects.GetRunningObject("No.Such.Class"), nullptr);
    EXPECT_EQ(objects.GetRunningObject(""), nullptr);
}

TEST_F(RunningObjectsTest, ClassThatIsNotRunningGivesNothing) {
    const ScratchClass scratch;
    if (!scratch.IsRegistered())
        GTEST_SKIP() << "classes cannot be registered here";
    EXPECT_EQ(objects.GetRunningObject(scratch.Name()), nullptr);
}

// As the system answers when one of both runs elevated, when nothing runs, or when what runs cannot
// be reached.
TEST_F(RunningObjectsTest, ActiveObjectThatCannotBeHadGivesNothingAtOnce) {
    const ScratchClass scratch;
    if (!scratch.IsRegistered())
        GTEST_SKIP() << "classes cannot be registered here";
    for (const HRESULT result :
         {E_ACCESSDENIED, MK_E_UNAVAILABLE, CO_E_OBJNOTCONNECTED, E_NOINTERFACE,
          HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE), REGDB_E_CLASSNOTREG}) {
        RunningObjects refused(retry, [result](const CLSID&, IUnknown**) { return result; });
        EXPECT_EQ(refused.GetRunningObject(scratch.Name()), nullptr);
    }
    EXPECT_TRUE(clock.waits.empty());
}

TEST_F(RunningObjectsTest, ObjectThatRefusesTheInterfaceGivesNothing) {
    const ScratchClass scratch;
    if (!scratch.IsRegistered())
        GTEST_SKIP() << "classes cannot be registered here";
    FakeDispatch fake;
    fake.interfaceResult = E_ACCESSDENIED;
    RunningObjects refused(retry, [&](const CLSID&, IUnknown** object) {
        fake.AddRef();
        *object = &fake;
        return S_OK;
    });
    EXPECT_EQ(refused.GetRunningObject(scratch.Name()), nullptr);
    EXPECT_EQ(fake.References(), 0U);
}

TEST_F(RunningObjectsTest, BusyProgramIsAskedAgainForThirtySecondsAndGivesNothingThen) {
    const ScratchClass scratch;
    if (!scratch.IsRegistered())
        GTEST_SKIP() << "classes cannot be registered here";
    RunningObjects busy(retry, [](const CLSID&, IUnknown**) { return RPC_E_CALL_REJECTED; });
    EXPECT_EQ(busy.GetRunningObject(scratch.Name()), nullptr);
    EXPECT_GE(clock.now, std::chrono::seconds(35));
}

TEST_F(RunningObjectsTest, RunningObjectIsCallableAndNotHeldLonger) {
    const ScratchClass scratch;
    if (!scratch.IsRegistered())
        GTEST_SKIP() << "classes cannot be registered here";
    FakeDispatch fake;
    fake.members[L"RevisionNumber"] = FakeDispatch::Returns(L"9.0");
    {
        const Registration registration(&fake, scratch.Id());
        const AutomationObjectPtr object = objects.GetRunningObject(scratch.Name());
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(object->Get("RevisionNumber").AsString(), "9.0");
    }
    fake.calls.clear();
    EXPECT_EQ(fake.References(), 0U);
    EXPECT_EQ(objects.GetRunningObject(scratch.Name()), nullptr);
}
