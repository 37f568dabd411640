// Reading what a caller hands in, whatever form it has, and handing results back.
#include "com/variant_result.h"
#include "com/variant_view.h"
#include "runtime/host_error.h"
#include "support/container/arrays.h"
#include "support/container/named_dispatch.h"
#include "support/container/text.h"

#include <gtest/gtest.h>

namespace vellora::test {
namespace {

using com::VariantView;

std::string shown(std::u16string_view text) {
    return utf8({reinterpret_cast<const wchar_t*>(text.data()), text.size()});
}

template <class Read>
std::int32_t error_of(Read read) {
    try {
        read();
    } catch (const HostError& error) {
        return error.number();
    }
    return 0;
}

std::string text_of(const VARIANT& value) {
    std::u16string scratch;
    return shown(VariantView(value).text(scratch));
}

std::int32_t text_error(const VARIANT& value) {
    return error_of([&] { text_of(value); });
}

std::string element(const VARIANT& value, std::int32_t index) {
    std::u16string scratch;
    return shown(VariantView(value).text_at(index, scratch));
}

std::string element(const VARIANT& value, std::int32_t first, std::int32_t second) {
    std::u16string scratch;
    return shown(VariantView(value).text_at(first, second, scratch));
}

VARIANT reference(VARTYPE type, void* target) {
    VARIANT value = {};
    V_VT(&value) = static_cast<VARTYPE>(type | VT_BYREF);
    V_BYREF(&value) = target;
    return value;
}

TEST(VariantView, ScalarsBecomeText) {
    EXPECT_EQ("text", text_of(Variant(L"text").get()));
    EXPECT_EQ("-3", text_of(Variant(-3).get()));
    EXPECT_EQ("True", text_of(Variant(true).get()));
    EXPECT_EQ("2.5", text_of(Variant(2.5).get()));
    EXPECT_EQ("", text_of(Variant().get()));
}

TEST(VariantView, NullIsNoTextAndErrorsAreNone) {
    EXPECT_EQ(error_number::invalid_use_of_null, text_error(Variant::null().get()));
    EXPECT_EQ(error_number::type_mismatch, text_error(Variant::missing().get()));
}

TEST(VariantView, LooksThroughReferences) {
    Variant inner(L"deep");
    VARIANT once = reference(VT_VARIANT, &inner.raw());
    EXPECT_EQ("deep", text_of(once));
    EXPECT_EQ("deep", text_of(reference(VT_VARIANT, &once)));
    short number = 12;
    EXPECT_EQ("12", text_of(reference(VT_I2, &number)));
    BSTR none = nullptr;
    EXPECT_EQ("", text_of(reference(VT_BSTR, &none)));
}

TEST(VariantView, AReferenceInACircleEnds) {
    VARIANT circle = {};
    circle = reference(VT_VARIANT, &circle);
    EXPECT_EQ(error_number::type_mismatch, error_of([&] { VariantView view(circle); }));
}

TEST(VariantView, ATextIsViewedInPlace) {
    const Variant text(L"in place");
    std::u16string scratch;
    const std::u16string_view view = VariantView(text.get()).text(scratch);
    EXPECT_EQ(static_cast<const void*>(V_BSTR(&text.get())), static_cast<const void*>(view.data()));
    const Variant array = text_array({L"a", L"b"});
    BSTR* const elements = static_cast<BSTR*>(V_ARRAY(&array.get())->pvData);
    const std::u16string_view second = VariantView(array.get()).text_at(1, scratch);
    EXPECT_EQ(static_cast<const void*>(elements[1]), static_cast<const void*>(second.data()));
}

TEST(VariantView, ArraysHaveTheirOwnBounds) {
    const Variant array = text_array({L"a", L"b", L"c"}, 5);
    const VariantView view(array.get());
    EXPECT_TRUE(view.is_array());
    EXPECT_EQ(5, view.lower_bound(1));
    EXPECT_EQ(7, view.upper_bound(1));
    EXPECT_EQ("c", element(array.get(), 7));
    for (const std::int32_t outside : {4, 8, INT32_MIN, INT32_MAX})
        EXPECT_EQ(error_number::subscript_out_of_range, error_of([&] { element(array.get(), outside); }));
    EXPECT_EQ(error_number::subscript_out_of_range, error_of([&] { view.lower_bound(2); }));
    EXPECT_EQ(error_number::subscript_out_of_range, error_of([&] { element(array.get(), 5, 0); }));
    EXPECT_EQ(error_number::type_mismatch, text_error(array.get()));
}

TEST(VariantView, TablesAreReadByBothIndexes) {
    const Variant table = text_table({{L"a", L"b"}, {L"c", L"d"}, {L"e", L"f"}}, 1, 10);
    EXPECT_EQ("d", element(table.get(), 2, 11));
    EXPECT_EQ("e", element(table.get(), 3, 10));
    EXPECT_EQ(error_number::subscript_out_of_range, error_of([&] { element(table.get(), 0, 10); }));
    EXPECT_EQ(error_number::subscript_out_of_range, error_of([&] { element(table.get(), 1); }));
}

TEST(VariantView, ArraysOfVariantsMayHoldAnything) {
    const Variant array = variant_array({L"a", 5, Variant(), Variant::null(), true});
    EXPECT_EQ("a", element(array.get(), 0));
    EXPECT_EQ("5", element(array.get(), 1));
    EXPECT_EQ("", element(array.get(), 2));
    EXPECT_EQ(error_number::invalid_use_of_null, error_of([&] { element(array.get(), 3); }));
    EXPECT_EQ("True", element(array.get(), 4));
}

TEST(VariantView, ArraysByReferenceAndOfNumbers) {
    Variant longs = long_array({10, 20});
    EXPECT_EQ("20", element(longs.get(), 1));
    SAFEARRAY* array = V_ARRAY(&longs.get());
    EXPECT_EQ("10", element(reference(VT_ARRAY | VT_I4, &array), 0));
    EXPECT_EQ(20, VariantView(longs.get()).integer_at(1));
}

TEST(VariantView, AnArrayWithoutBoundsIsAnArray) {
    SAFEARRAY* none = nullptr;
    const VARIANT value = reference(VT_ARRAY | VT_BSTR, &none);
    const VariantView view(value);
    EXPECT_TRUE(view.is_array());
    EXPECT_EQ(error_number::subscript_out_of_range, error_of([&] { view.upper_bound(1); }));
    EXPECT_EQ(error_number::subscript_out_of_range, error_of([&] { element(value, 0); }));
}

TEST(VariantView, AnArrayThatLiesAboutItsElementsIsRefused) {
    Variant bytes = blank_array(VT_UI1, {{4, 0}});
    V_VT(&bytes.raw()) = VT_ARRAY | VT_BSTR;
    EXPECT_EQ(error_number::type_mismatch, error_of([&] { VariantView view(bytes.get()); }));
    V_VT(&bytes.raw()) = VT_ARRAY | VT_UI1;
}

TEST(VariantView, AnArrayStaysWhileItIsRead) {
    Variant array = text_array({L"a"});
    {
        const VariantView view(array.get());
        EXPECT_EQ(DISP_E_ARRAYISLOCKED, SafeArrayDestroyData(V_ARRAY(&array.get())));
    }
    EXPECT_EQ(S_OK, SafeArrayDestroyData(V_ARRAY(&array.get())));
}

TEST(VariantView, NumbersOfAnArrayAreIntegers) {
    const Variant mixed = variant_array({2.5, L"3", 40000, L"x", Variant::null(), Variant()});
    const VariantView view(mixed.get());
    EXPECT_EQ(2, view.integer_at(0));
    EXPECT_EQ(3, view.integer_at(1));
    EXPECT_EQ(error_number::overflow, error_of([&] { view.integer_at(2); }));
    EXPECT_EQ(error_number::type_mismatch, error_of([&] { view.integer_at(3); }));
    EXPECT_EQ(error_number::invalid_use_of_null, error_of([&] { view.integer_at(4); }));
    EXPECT_EQ(0, view.integer_at(5));
}

TEST(VariantView, NothingAndObjectsWithoutADefaultFail) {
    EXPECT_EQ(91, text_error(Variant(static_cast<IDispatch*>(nullptr)).get()));
    const Microsoft::WRL::ComPtr<IDispatch> silent(new NamedDispatch);
    EXPECT_EQ(438, text_error(Variant(silent.Get()).get()));
}

TEST(VariantResults, BecomeTheCallersVariants) {
    const auto handed = [](const VariantResult& result) {
        Variant out;
        com::to_variant(result, out.out());
        return out.describe();
    };
    EXPECT_EQ("Empty", handed({}));
    EXPECT_EQ("\"a\"", handed(std::u16string(u"a")));
    EXPECT_EQ("String(0 To 1) {\"a\", \"b\"}", handed(std::vector<std::u16string>{u"a", u"b"}));
    EXPECT_EQ("String(0 To 1, 0 To 2) {{\"a\", \"b\", \"c\"}, {\"d\", \"e\", \"f\"}}",
              handed(TextTable{2, 3, {u"a", u"b", u"c", u"d", u"e", u"f"}}));
    EXPECT_EQ("Integer(0 To 1) {I2 3, I2 -1}", handed(std::vector<std::int16_t>{3, -1}));
    EXPECT_EQ("Variant(0 To 1) {I4 7, Empty}", handed(std::vector<std::optional<std::int32_t>>{7, {}}));
}

} // namespace
} // namespace vellora::test
