// How the library hands out controls, and when it may be unloaded.
#include "com/support/host_test.h"
#include "support/container/library.h"

namespace vellora::test {
namespace {

ComPtr<IClassFactory> factory() {
    ComPtr<IClassFactory> found;
    EXPECT_EQ(S_OK, Library::instance().class_object(__uuidof(Vellora), IID_PPV_ARGS(&found)));
    return found;
}

TEST(Factory, StaysLoadedWhileItIsHeldOrLocked) {
    ASSERT_EQ(S_OK, Library::instance().can_unload());
    ComPtr<IClassFactory> held = factory();
    EXPECT_EQ(S_FALSE, Library::instance().can_unload());
    ASSERT_EQ(S_OK, held->LockServer(TRUE));
    held.Reset();
    EXPECT_EQ(S_FALSE, Library::instance().can_unload());
    EXPECT_EQ(S_OK, factory()->LockServer(FALSE));
    EXPECT_EQ(S_OK, Library::instance().can_unload());
}

TEST(Factory, AnUnlockTooManyTakesNothingAway) {
    ComPtr<IClassFactory> held = factory();
    EXPECT_EQ(S_OK, held->LockServer(FALSE));
    EXPECT_EQ(S_FALSE, Library::instance().can_unload());
    EXPECT_EQ(S_OK, held->LockServer(TRUE));
    held.Reset();
    EXPECT_EQ(S_FALSE, Library::instance().can_unload());
    EXPECT_EQ(S_OK, factory()->LockServer(FALSE));
    EXPECT_EQ(S_OK, Library::instance().can_unload());
}

TEST(Factory, KnowsOneClass) {
    ComPtr<IClassFactory> none;
    EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE,
              Library::instance().class_object(__uuidof(_Vellora), IID_PPV_ARGS(&none)));
    ComPtr<IDispatch> other;
    EXPECT_EQ(E_NOINTERFACE, Library::instance().class_object(__uuidof(Vellora), IID_PPV_ARGS(&other)));
    EXPECT_EQ(E_POINTER, factory()->CreateInstance(nullptr, IID_IUnknown, nullptr));
    EXPECT_EQ(E_NOINTERFACE, factory()->CreateInstance(nullptr, IID_IMarshal, &other));
    EXPECT_EQ(nullptr, other.Get());
}

} // namespace
} // namespace vellora::test
