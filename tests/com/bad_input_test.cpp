// What a careless or hostile caller hands in: nothing of it may crash, and rows stay consistent.
#include "com/support/open_list_test.h"
#include "support/container/call_by_name.h"
#include "support/container/library.h"
#include "support/container/text.h"

#include <functional>

namespace vellora::test {
namespace {

class BadInput : public OpenListTest {
protected:
    static std::string code(HRESULT result) { return std::to_string(Failure{result, {}, {}}.number()); }
    LONG count() {
        LONG value = -1;
        EXPECT_EQ(S_OK, c().get_ListCount(&value));
        return value;
    }
    // Still works as a list.
    void expect_sound() {
        const LONG rows = count();
        ASSERT_GE(rows, 0);
        if (rows > 0 && rows < 32000) {
            Variant last;
            EXPECT_EQ(S_OK, c().get_List(static_cast<short>(rows - 1), 1, last.out()));
        }
        EXPECT_EQ(S_OK, c().AddItem(Variant(L"sound").get(), 0));
        Variant first;
        EXPECT_EQ(S_OK, c().get_List(0, 1, first.out()));
        EXPECT_EQ("\"sound\"", first.describe());
    }
    static Variant of_type(VARTYPE type) {
        Variant value;
        value.raw().vt = type;
        value.raw().llVal = 0;
        return value;
    }
    static std::vector<Variant> nasty_values();
};

std::vector<Variant> BadInput::nasty_values() {
    using Bounds = std::vector<SAFEARRAYBOUND>;
    std::vector<Variant> values{Variant(),
                                Variant::null(),
                                Variant::missing(),
                                Variant::date(1e9),
                                Variant(1e308),
                                Variant(static_cast<IDispatch*>(nullptr)),
                                Variant(static_cast<IUnknown*>(nullptr)),
                                Variant(make_font(L"Tahoma", 8).Get()),
                                of_type(VT_BSTR),
                                of_type(VT_I8),
                                of_type(VT_UI1),
                                of_type(VT_DECIMAL),
                                of_type(VT_CY),
                                variant_array({}),
                                text_array({}),
                                text_array({L"a"}, -1),
                                text_array({L"a", L"b"}, 32767),
                                text_array({L"a", L"b"}, 2147483600),
                                text_array({L"a", L"b"}, -2147483647L - 1),
                                variant_array({Variant::null()}),
                                variant_array({Variant::missing()}),
                                variant_array({text_array({L"nested"})}),
                                variant_array({Variant(make_font(L"Tahoma", 8).Get())})};
    for (VARTYPE type : {VT_I1, VT_UI1, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_R4, VT_R8, VT_CY, VT_DATE, VT_BOOL,
                         VT_DECIMAL, VT_UNKNOWN, VT_DISPATCH, VT_ERROR, VT_VARIANT, VT_BSTR, VT_I8}) {
        values.push_back(blank_array(type, Bounds{{2, 0}}));
        values.push_back(blank_array(type, Bounds{{2, 0}, {2, 0}}));
        values.push_back(blank_array(type, Bounds{{0, 0}, {2, 5}}));
        values.push_back(blank_array(type, Bounds{{2, -3}, {1, 0}, {2, 1}}));
    }
    return values;
}

TEST_F(BadInput, AddItemOfAnythingFailsOrAddsOneRow) {
    c().put_Columns(3);
    int number = 0;
    for (const Variant& value : nasty_values()) {
        const LONG before = count();
        const HRESULT result = c().AddItem(value.get(), -1);
        EXPECT_EQ(before + 1, count()) << "value " << number << ' ' << code(result);
        ++number;
    }
    expect_sound();
}

TEST_F(BadInput, ListTakesAnythingInAnyColumn) {
    c().put_Columns(2);
    for (int column : {-32768, -5, -4, -3, -2, -1, 0, 1, 2, 3, 32767})
        for (const Variant& value : nasty_values()) {
            c().put_List(1, static_cast<short>(column), value.get());
            ASSERT_GE(count(), 2);
            ASSERT_LE(count(), 3000);
        }
    expect_sound();
}

TEST_F(BadInput, EveryOtherMemberWithAVariantTakesAnything) {
    c().put_Columns(3);
    c().AddItem(text_array({L"a", L"b", L"c"}).get(), -1);
    for (const Variant& value : nasty_values()) {
        LONG found = -5;
        for (int column : {-1, 0, 1, 2, 3, 9})
            c().FindItem(value.get(), static_cast<short>(column), 1, vlWholeWord, &found);
        c().put_ColumnOrder(value.get());
        Variant order;
        EXPECT_EQ(S_OK, c().get_ColumnOrder(order.out()));
        EXPECT_EQ("Integer(0 To 2) {I2 1, I2 2, I2 3}", order.describe());
    }
    expect_sound();
}

TEST_F(BadInput, ScriptsMayHandInAnythingToo) {
    const auto script = site().as<IDispatch>();
    for (const Variant& value : nasty_values()) {
        failure_text([&] { call_method(script.Get(), L"AddItem", {value}); });
        failure_text([&] { put_property(script.Get(), L"List", value, {0, -3}); });
        failure_text([&] { put_property(script.Get(), L"Text", value); });
        failure_text([&] { put_property(script.Get(), L"ListIndex", value); });
        failure_text([&] { put_property(script.Get(), L"Columns", value); });
        failure_text([&] { get_property(script.Get(), L"List", {value}); });
        failure_text([&] { set_property(script.Get(), L"Font", value); });
        failure_text([&] { set_property(script.Get(), L"Picture", value); });
    }
    c().Clear();
    c().put_Columns(1);
    expect_sound();
}

TEST_F(BadInput, TheFieldAndItsLooksTakeAnythingToo) {
    const auto script = site().as<IDispatch>();
    for (const wchar_t* name :
         {L"Alignment", L"MaxLength", L"LeftMargin", L"RightMargin", L"Locked", L"SelText", L"SelStart",
          L"SelLength", L"AutoComplete", L"Enabled", L"ForeColor", L"BackColor", L"ButtonForeColor",
          L"ButtonBackColor", L"ButtonStyle", L"GridLines", L"AutoHeight", L"Font", L"Picture"})
        for (const Variant& value : nasty_values()) {
            failure_text([&] { put_property(script.Get(), name, value); });
            failure_text([&] { set_property(script.Get(), name, value); });
        }
    EXPECT_EQ(S_OK, c().put_Alignment(0));
    EXPECT_EQ(S_OK, c().put_MaxLength(0));
    EXPECT_EQ(S_OK, c().put_Enabled(VARIANT_TRUE));
    EXPECT_EQ(S_OK, c().put_Locked(VARIANT_FALSE));
    EXPECT_EQ(S_OK, c().put_AutoComplete(VARIANT_TRUE));
    c().AddItem(Variant(L"Apple").get(), -1);
    SetFocus(text_field(control()));
    key(text_field(control()), 'A');
    EXPECT_EQ(L"Apple", text());
    expect_sound();
}

TEST_F(BadInput, WrongNamesAndCountsAreRefused) {
    const auto script = site().as<IDispatch>();
    EXPECT_EQ(std::to_string(DISP_E_UNKNOWNNAME) + " source \"NoSuch\" description \"unknown name\"",
              failure_text([&] { call_method(script.Get(), L"NoSuch"); }));
    EXPECT_NE("none", failure_text([&] { call_method(script.Get(), L"AddItem"); }));
    EXPECT_NE("none", failure_text([&] { call_method(script.Get(), L"AddItem", {1, 2, 3}); }));
    EXPECT_NE("none", failure_text([&] { put_property(script.Get(), L"ListCount", 1); }));
    EXPECT_NE("none", failure_text([&] { put_property(script.Get(), L"hWnd", 1); }));
}

TEST_F(BadInput, NumbersBeyondSixteenBitsOverflow) {
    const auto script = site().as<IDispatch>();
    for (long row : {32768L, -32769L, 2147483647L}) {
        const std::string failed = failure_text([&] { get_property(script.Get(), L"List", {row}); });
        EXPECT_EQ(0U, failed.find(std::to_string(DISP_E_OVERFLOW))) << failed;
    }
    EXPECT_EQ(S_OK, c().AddItem(Variant(L"a").get(), -1));
    EXPECT_EQ("6", code(c().AddItem(Variant(L"b").get(), 32767)));
    EXPECT_EQ("35600", code(c().AddItem(Variant(L"b").get(), 32766)));
    EXPECT_EQ(1, count());
}

TEST_F(BadInput, ListMayGrowToTheLastRowAnIntegerReaches) {
    EXPECT_EQ(S_OK, c().put_List(32767, -1, Variant(L"last").get()));
    EXPECT_EQ(32768, count());
    Variant last;
    EXPECT_EQ(S_OK, c().get_List(32767, -1, last.out()));
    EXPECT_EQ("\"last\"", last.describe());
    EXPECT_EQ(S_OK, c().Clear());
    expect_sound();
}

TEST_F(BadInput, LongTextsArePassedThroughWhole) {
    const std::wstring text(5 * 1024 * 1024, L'x');
    EXPECT_EQ(S_OK, c().AddItem(Variant(text).get(), -1));
    Variant back;
    EXPECT_EQ(S_OK, c().get_List(0, -1, back.out()));
    EXPECT_TRUE(text == back.text());
    EXPECT_EQ(S_OK, c().put_Text(Bstr(text).get()));
    Bstr shown;
    EXPECT_EQ(S_OK, c().get_Text(shown.out()));
    EXPECT_TRUE(text == shown.text());
    open();
    c().HideList();
}

TEST_F(BadInput, RowsKeepZerosInTheirTexts) {
    const std::wstring text(L"a\0b", 3);
    EXPECT_EQ(S_OK, c().AddItem(Variant(text).get(), -1));
    Variant back;
    EXPECT_EQ(S_OK, c().get_List(0, -1, back.out()));
    EXPECT_TRUE(text == back.text());
    EXPECT_EQ(S_OK, c().put_ListIndex(0));
    Bstr shown;
    EXPECT_EQ(S_OK, c().get_Text(shown.out()));
    EXPECT_EQ(L"a", shown.text());
    open();
    EXPECT_TRUE(is_open());
    c().HideList();
}

TEST_F(BadInput, NullTextsAreEmptyOnes) {
    EXPECT_EQ(S_OK, c().put_Text(nullptr));
    Bstr text;
    EXPECT_EQ(S_OK, c().get_Text(text.out()));
    EXPECT_EQ(L"", text.text());
    EXPECT_EQ(S_OK, c().put_ColumnHeader(1, nullptr));
    EXPECT_EQ(S_OK, c().put_SelText(nullptr));
}

TEST_F(BadInput, NullPointersAreRefused) {
    EXPECT_EQ(E_POINTER, c().get_Text(nullptr));
    EXPECT_EQ(E_POINTER, c().get_ListCount(nullptr));
    EXPECT_EQ(E_POINTER, c().get_List(0, -1, nullptr));
    EXPECT_EQ(E_POINTER, c().RemoveItem(nullptr));
    EXPECT_EQ(E_POINTER, c().FindItem(Variant(L"a").get(), 0, 1, vlWholeWord, nullptr));
}

// Calls every kind of member once.
void call_many(_Vellora& control) {
    LONG number = 0;
    Bstr text;
    Variant value;
    control.put_Text(Bstr(L"text").get());
    control.get_Text(text.out());
    control.put_Columns(2);
    control.put_ColumnHeader(1, Bstr(L"One").get());
    control.put_ColumnWidth(1, 500);
    control.put_ColumnHidden(2, VARIANT_TRUE);
    control.AddItem(text_array({L"a", L"b"}).get(), -1);
    control.get_List(0, -2, value.out());
    control.put_ListIndex(0);
    control.get_ListIndex(&number);
    control.AutoSizeNow(vlIncludeHeaders);
    control.put_Sorted(VARIANT_TRUE);
    control.FindItem(Variant(L"a").get(), 0, 1, vlWholeWord, &number);
    control.put_Alignment(2);
    control.put_Enabled(VARIANT_FALSE);
    control.put_AutoHeight(VARIANT_FALSE);
    control.put_SelStart(1);
    control.Refresh();
    control.ShowList();
    control.HideList();
    control.ClearAll();
}

TEST_F(BadInput, CallsBeforeActivation) {
    Site& early = container_.add_site(L"Early", {20, 80, 220, 104});
    early.take(Library::instance().create(__uuidof(Vellora)));
    call_many(*early.as<_Vellora>().Get());
    ASSERT_EQ(S_OK, early.give_site());
    call_many(*early.as<_Vellora>().Get());
    ASSERT_EQ(S_OK, early.init_new());
    call_many(*early.as<_Vellora>().Get());
    ASSERT_EQ(S_OK, early.activate());
    LONG rows = -1;
    EXPECT_EQ(S_OK, early.as<_Vellora>()->get_ListCount(&rows));
    EXPECT_EQ(0, rows);
}

TEST_F(BadInput, CallsAfterTheWindowIsGone) {
    ComPtr<_Vellora> held = &c();
    open();
    DestroyWindow(control());
    call_many(*held.Get());
    container_.destroy_form();
    call_many(*held.Get());
    site().destroy();
    call_many(*held.Get());
    EXPECT_TRUE(floating_windows().empty());
}

TEST_F(BadInput, CallsInsideEveryEvent) {
    int depth = 0;
    site().events().on_every([&](const std::string&, EventArguments&) {
        if (++depth < 4)
            call_many(c());
        --depth;
    });
    fill(3);
    call_many(c());
    fill(3);
    click_button();
    click_button();
    key(text_field(control()), 'A');
    key(text_field(control()), VK_DOWN);
    site().events().on_every({});
    c().ClearAll();
    c().HideList();
    container_.pump();
    EXPECT_TRUE(floating_windows().empty());
    expect_sound();
}

// The platform's own caller would pass them on to the property's result, and fails where that is Nothing.
TEST_F(BadInput, SurplusArgumentsAreRefused) {
    IDispatch* const object = &c();
    const std::string wrong_count = std::to_string(DISP_E_BADPARAMCOUNT); // scripts see 450
    const auto number = [](auto call) {
        try {
            call();
        } catch (const CallFailed& failed) {
            return std::to_string(failed.failure().number());
        }
        return std::string("none");
    };
    const Variant surplus(1);
    EXPECT_EQ(wrong_count, number([&] { get_property(object, L"Picture", {surplus}); }));
    EXPECT_EQ(wrong_count, number([&] { get_property(object, L"Font", {surplus}); }));
    EXPECT_EQ(wrong_count, number([&] { get_property(object, L"ListCount", {surplus}); }));
    EXPECT_EQ(wrong_count, number([&] { get_property(object, L"ColumnHeader", {surplus, surplus}); }));
    EXPECT_EQ(wrong_count, number([&] { put_property(object, L"Columns", Variant(2), {surplus}); }));
    EXPECT_EQ(wrong_count, number([&] { call_method(object, L"Clear", {surplus}); }));
    EXPECT_EQ("none", number([&] { get_property(object, L"ColumnHeader", {surplus}); }));
    expect_sound();
}

} // namespace
} // namespace vellora::test
