// The control as such: its own text, windows and repaint, and what it announces while it sets itself up.
#include "com/support/host_test.h"
#include "support/container/call_by_name.h"
#include "support/container/library.h"

namespace vellora::test {
namespace {

using ControlObject = MemberTest;
VELLORA_BOTH_WAYS(ControlObject);

TEST_P(ControlObject, ANewOneShowsItsNameAndChangesNothing) {
    EXPECT_EQ(L"Vellora1", c().text());
    EXPECT_EQ(1, c().columns());
    EXPECT_EQ(-1, c().list_index());
    EXPECT_TRUE(same_lines({}, events()));
    EXPECT_TRUE(same_lines({}, changed()));
}

TEST_P(ControlObject, TextIsReadAndWritten) {
    c().set_text(L"Gr\u00FC\u00DFe \u6771\u4EAC");
    EXPECT_EQ(L"Gr\u00FC\u00DFe \u6771\u4EAC", c().text());
    EXPECT_TRUE(same_lines({"Change()"}, events()));
    c().set_text(L"");
    EXPECT_EQ(L"", c().text());
}

TEST_P(ControlObject, TheSameTextAgainIsNoChange) {
    c().set_text(L"once");
    events();
    c().set_text(L"once");
    EXPECT_TRUE(same_lines({}, events()));
}

TEST_P(ControlObject, WritingTextFromItsOwnChangeIsSwallowed) {
    site().events().on("Change", [&](EventArguments&) { c().set_text(L"nested"); });
    c().set_text(L"outer");
    EXPECT_EQ(L"outer", c().text());
    EXPECT_TRUE(same_lines({"Change()"}, events()));
    site().events().on("Change", {});
    c().set_text(L"later");
    EXPECT_EQ(L"later", c().text());
}

TEST_P(ControlObject, WritingTextDoesNotSelect) {
    add({L"a", L"b"});
    c().set_text(L"b");
    EXPECT_EQ(-1, c().list_index());
}

TEST_P(ControlObject, TheWindowsAreRealOnes) {
    ASSERT_TRUE(IsWindow(c().window()));
    EXPECT_EQ(container_.form().window(), c().container_window());
    EXPECT_TRUE(IsChild(c().container_window(), c().window()));
    EXPECT_NE(nullptr, text_field(c().window()));
    EXPECT_NE(nullptr, drop_button(c().window()));
    EXPECT_NE(nullptr, list_of(c().window()));
}

TEST_P(ControlObject, RefreshForgetsThatTheListIsOutOfOrder) {
    c().set_sorted(true);
    add({L"b", L"a"});
    c().refresh();
    c().item_data(0);
    EXPECT_EQ("\"b\"", c().list(0).describe());
}

TEST_P(ControlObject, TextIsTheDefaultMember) {
    EXPECT_EQ(DISPID_VALUE, dispatch_id(site().as<IDispatch>().Get(), L"Text"));
    EXPECT_EQ(DISPID_VALUE, dispatch_id(site().as<IDispatch>().Get(), L"tEXT"));
}

TEST_P(ControlObject, WithoutANameTheTextIsEmpty) {
    Site& bare = container_.add_site(L"", {20, 60, 220, 84});
    bare.ambients().withhold_all();
    bare.state().has_extender = false;
    bare.take(Library::instance().create(__uuidof(Vellora)));
    ASSERT_EQ(S_OK, bare.give_site());
    ASSERT_EQ(S_OK, bare.init_new());
    ASSERT_EQ(S_OK, bare.activate());
    use(bare);
    EXPECT_EQ(L"", c().text());
    c().set_columns(2);
    EXPECT_EQ(2, c().columns());
}

} // namespace
} // namespace vellora::test
