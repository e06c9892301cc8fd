// Rules: Toolkit
#include "platform/ComApartment.h"

#include "common/RuntimeError.h"

#include <gtest/gtest.h>
#include <thread>
#include <windows.h>
#include <objbase.h>

namespace {

bool IsInSingleThreadedApartment() {
    APTTYPE type{};
    APTTYPEQUALIFIER qualifier{};
    return SUCCEEDED(CoGetApartmentType(&type, &qualifier)) &&
           (type == APTTYPE_MAINSTA || type == APTTYPE_STA);
}

} // namespace

TEST(ComApartment, ThreadIsInItsOwnApartmentWhileItLives) {
    std::thread([] {
        EXPECT_FALSE(IsInSingleThreadedApartment());
        {
            const ComApartment apartment;
            EXPECT_TRUE(IsInSingleThreadedApartment());
            const ComApartment again;
        }
        EXPECT_FALSE(IsInSingleThreadedApartment());
    }).join();
}

TEST(ComApartment, ThreadOfAnotherKindIsAnError) {
    std::thread([] {
        ASSERT_EQ(CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
        EXPECT_THROW(ComApartment(), RuntimeError);
        CoUninitialize();
    }).join();
}
