// Several controls in one process: only one list is open at a time, and the lists do not disturb each other.
#include "com/support/open_list_test.h"

namespace vellora::test {
namespace {

class TwoControls : public OpenListTest {
protected:
    void SetUp() override {
        OpenListTest::SetUp();
        other_site_ = &place(L"Vellora2", {20, 120, 220, 144});
        other_site_->events().ignore("MouseMove");
        other_ = vellora(*other_site_);
        fill(4);
        for (const wchar_t* row : {L"x", L"y"})
            other_->AddItem(Variant(row).get(), -1);
    }
    Lines other_events() { return other_site_->events().take(); }
    Site* other_site_ = nullptr;
    ComPtr<_Vellora> other_;
};

TEST_F(TwoControls, OpenOneAfterTheOther) {
    for (int round = 0; round < 3; ++round) {
        open();
        c().HideList();
        other_->ShowList();
        container_.pump();
        EXPECT_EQ(1U, floating_windows().size());
        other_->HideList();
        container_.pump();
        EXPECT_TRUE(floating_windows().empty());
        EXPECT_TRUE(same_lines({"DropDown(I4 0)", "DropDown(I4 1)"}, events()));
        EXPECT_TRUE(same_lines({"DropDown(I4 0)", "DropDown(I4 1)"}, other_events()));
    }
}

TEST_F(TwoControls, AClickOnTheSecondButtonClosesTheFirstAndOpensTheSecond) {
    open();
    HWND button = drop_button(window_of(*other_site_));
    click(button, screen_rect(button));
    EXPECT_EQ(1U, floating_windows().size());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)", "DropDown(I4 1)"}, events()));
    EXPECT_TRUE(same_lines({"DropDown(I4 0)"}, other_events()));
    other_->HideList();
}

TEST_F(TwoControls, ShowListOfTheSecondOnlyClosesTheFirst) {
    open();
    other_->ShowList();
    container_.pump();
    EXPECT_TRUE(floating_windows().empty());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)", "DropDown(I4 1)"}, events()));
    EXPECT_TRUE(same_lines({}, other_events()));
    HWND button = drop_button(window_of(*other_site_));
    click(button, screen_rect(button));
    EXPECT_TRUE(same_lines({"DropDown(I4 0)"}, other_events()));
    other_->HideList();
}

TEST_F(TwoControls, DestroyingTheOneWithTheOpenListLeavesTheOtherAble) {
    open();
    site().destroy();
    EXPECT_TRUE(floating_windows().empty());
    other_->ShowList();
    container_.pump();
    EXPECT_EQ(1U, floating_windows().size());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)"}, other_events()));
    other_->HideList();
}

TEST_F(TwoControls, DestroyingTheClosedOneLeavesTheOpenList) {
    open();
    other_.Reset();
    other_site_->destroy();
    EXPECT_EQ(1U, floating_windows().size());
    click(list(), row_rect(list(), 2));
    EXPECT_EQ(2, list_index());
    EXPECT_FALSE(is_open());
}

TEST_F(TwoControls, TheyShareNothingButTheOneOpenList) {
    c().put_Columns(3);
    SHORT columns = 0;
    other_->get_Columns(&columns);
    EXPECT_EQ(1, columns);
    LONG count = 0;
    other_->get_ListCount(&count);
    EXPECT_EQ(2, count);
}

} // namespace
} // namespace vellora::test
