// Fixture of the hosting's tests: the platform's OLE, a form, and fixture controls on it.
#pragma once

#include "hosting/support/fixture_control.h"
#include "support/container/container.h"
#include "support/container/variant.h"

namespace vellora::test {

class HostingTest : public testing::Test {
protected:
    /// A control without a container.
    HostingTest() : control_(make_fixture()) {}

    /// The control, and the parts behind it that the tests look into.
    IUnknown* control() const noexcept { return control_.Get(); }
    static FixtureControl& fixture() { return *FixtureControl::last; }
    template <class Interface>
    ComPtr<Interface> as() const {
        ComPtr<Interface> found;
        EXPECT_EQ(S_OK, control_.As(&found));
        return found;
    }

    /// Puts the control on the form, where nothing of it is shown yet.
    Site& on_form(const RECT& place = {20, 20, 220, 44});
    void release() { control_.Reset(); }

    Container container_;

private:
    ComPtr<IUnknown> control_;
};

} // namespace vellora::test
