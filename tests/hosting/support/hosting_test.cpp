#include "hosting/support/hosting_test.h"

namespace vellora::test {

namespace {

class Ole final : public testing::Environment {
public:
    void SetUp() override { ASSERT_TRUE(SUCCEEDED(OleInitialize(nullptr))); }
    void TearDown() override { OleUninitialize(); }
};

const auto* const ole = testing::AddGlobalTestEnvironment(new Ole);

} // namespace

Site& HostingTest::on_form(const RECT& place) {
    Site& site = container_.add_site(L"Fixture1", place);
    site.take(control_);
    EXPECT_EQ(S_OK, site.give_site());
    EXPECT_EQ(S_OK, site.init_new());
    fixture().take_lines();
    site.log().take();
    return site;
}

} // namespace vellora::test
