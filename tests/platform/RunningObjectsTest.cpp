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
