// Check boxes of the open list by mouse, space bar, code and message, and what a handler may do meanwhile.
#include "com/support/open_list_test.h"
#include "support/container/text.h"

#include <commctrl.h>
#include <functional>

namespace vellora::test {
namespace {

constexpr int very_many = 100'000;
constexpr char none[] = "Variant(0 To 0) {Empty}";

class CheckBoxesTest : public OpenListTest {
protected:
    void SetUp() override {
        OpenListTest::SetUp();
        use(place_with_check_boxes());
    }
    short checked_count() {
        short count = -1;
        EXPECT_EQ(S_OK, c().get_CheckedCount(&count));
        return count;
    }
    std::string checked_items() {
        Variant items;
        EXPECT_EQ(S_OK, c().CheckedItems(items.out()));
        return items.describe();
    }
    // As other programs check all rows at once.
    void check_every_row() {
        LVITEMW item{};
        item.state = INDEXTOSTATEIMAGEMASK(2);
        item.stateMask = LVIS_STATEIMAGEMASK;
        SendMessageW(list(), LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&item));
    }
};

TEST_F(CheckBoxesTest, AnEmptyListHasNoneChecked) {
    EXPECT_EQ(0, checked_count());
    EXPECT_EQ(none, checked_items());
}

TEST_F(CheckBoxesTest, AHundredThousandRowsAreCheckedAndCounted) {
    const Variant row(L"row");
    for (int i = 0; i < very_many; ++i)
        ASSERT_EQ(S_OK, c().AddItem(row.get(), -1));
    for (int i = 0; i <= 32767; ++i)
        ASSERT_EQ(S_OK, c().put_Checked(static_cast<short>(i), VARIANT_TRUE));
    EXPECT_EQ(32767, checked_count()) << "an Integer ends there";
    EXPECT_EQ(32768, site().events().count("ItemCheck"));
    check_every_row();
    EXPECT_EQ(32767, checked_count());
    Variant items;
    ASSERT_EQ(S_OK, c().CheckedItems(items.out()));
    SAFEARRAY* const array = items.get().parray;
    long last = 0;
    ASSERT_EQ(S_OK, SafeArrayGetUBound(array, 1, &last));
    ASSERT_EQ(very_many - 1, last);
    Variant index;
    ASSERT_EQ(S_OK, SafeArrayGetElement(array, &last, index.out()));
    EXPECT_EQ("I4 99999", index.describe());
    for (int i = 0; i <= 32767; ++i)
        c().put_Checked(static_cast<short>(i), VARIANT_FALSE);
    EXPECT_EQ(32767, checked_count());
}

/// What a handler does in the middle of a check, and which rows are checked afterwards.
struct Meddling {
    const char* name;
    std::function<void(_Vellora&)> meddle;
    const char* checked;
    long rows;
};

void PrintTo(const Meddling& meddling, std::ostream* out) {
    *out << meddling.name;
}

class CheckHandler : public CheckBoxesTest, public testing::WithParamInterface<Meddling> {
protected:
    void SetUp() override {
        CheckBoxesTest::SetUp();
        fill(6);
        c().put_ListIndex(2);
        open();
        site().events().on("ItemCheck", [this](EventArguments& arguments) {
            GetParam().meddle(c());
            arguments.set(2, Variant(cancel_));
        });
    }
    void check_by_mouse() {
        RECT box = row_rect(list(), 2);
        box.right = box.left + (box.bottom - box.top);
        click(list(), box);
    }
    void expect_sound() {
        long rows = -1;
        EXPECT_EQ(S_OK, c().get_ListCount(&rows));
        EXPECT_EQ(GetParam().rows, rows);
        EXPECT_EQ(rows, SendMessageW(list(), LVM_GETITEMCOUNT, 0, 0));
        UpdateWindow(list());
        site().events().forget_handlers();
        c().HideList();
        c().AddItem(Variant(L"sound").get(), 0);
        open();
        EXPECT_TRUE(is_open());
    }
    bool cancel_ = false;
};

TEST_P(CheckHandler, MeddlesWithTheSpaceBar) {
    key(list(), VK_SPACE);
    EXPECT_EQ(GetParam().checked, checked_items());
    expect_sound();
}

TEST_P(CheckHandler, MeddlesWithTheMouse) {
    check_by_mouse();
    EXPECT_EQ(GetParam().checked, checked_items());
    expect_sound();
}

TEST_P(CheckHandler, MeddlesWithCode) {
    c().put_Checked(2, VARIANT_TRUE);
    EXPECT_EQ(GetParam().checked, checked_items());
    expect_sound();
}

TEST_P(CheckHandler, MeddlesAndCancels) {
    cancel_ = true;
    key(list(), VK_SPACE);
    EXPECT_EQ(none, checked_items());
    expect_sound();
}

void remove_row(_Vellora& combo, short row) {
    combo.RemoveItem(&row);
}

void sort_downwards(_Vellora& combo) {
    combo.put_SortOrder(vlDescending);
    combo.put_Sorted(VARIANT_TRUE);
}

INSTANTIATE_TEST_SUITE_P(
    Handlers, CheckHandler,
    testing::Values(
        Meddling{"RemovesTheRow", [](_Vellora& combo) { remove_row(combo, 2); }, none, 5},
        Meddling{"RemovesARowBefore", [](_Vellora& combo) { remove_row(combo, 0); }, "Variant(0 To 0) {I4 1}", 5},
        Meddling{"RemovesTheLast", [](_Vellora& combo) { remove_row(combo, 5); }, "Variant(0 To 0) {I4 2}", 5},
        Meddling{"AddsARowBefore", [](_Vellora& combo) { combo.AddItem(Variant(L"new").get(), 0); },
                 "Variant(0 To 0) {I4 3}", 7},
        Meddling{"Sorts", sort_downwards, "Variant(0 To 0) {I4 3}", 6},
        Meddling{"Clears", [](_Vellora& combo) { combo.Clear(); }, none, 0},
        Meddling{"ClearsAll", [](_Vellora& combo) { combo.ClearAll(); }, none, 0},
        Meddling{"MakesOtherColumns", [](_Vellora& combo) { combo.put_Columns(3); }, none, 0}),
    [](const auto& meddling) { return std::string(meddling.param.name); });

} // namespace
} // namespace vellora::test
