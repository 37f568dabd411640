// Members called as scripts call them.
#include "hosting/support/hosting_test.h"
#include "support/container/call_by_name.h"
#include "support/container/failure.h"
#include "support/container/text.h"

namespace vellora::test {
namespace {

class DispatchTest : public HostingTest {
protected:
    Variant call(DISPID member, WORD flags, std::vector<VARIANT> declared_order) {
        return call_failing(member, flags, std::move(declared_order), S_OK);
    }
    Variant call_failing(DISPID member, WORD flags, std::vector<VARIANT> declared_order, HRESULT expected) {
        std::vector<VARIANT> arguments(declared_order.rbegin(), declared_order.rend());
        DISPID put = DISPID_PROPERTYPUT;
        const bool puts = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        DISPPARAMS parameters = {arguments.data(), puts ? &put : nullptr, static_cast<UINT>(arguments.size()),
                                 puts ? 1U : 0U};
        Variant result;
        EXPECT_EQ(expected, as<IDispatch>()->Invoke(member, IID_NULL, 0, flags, &parameters,
                                                    puts ? nullptr : result.out(), nullptr, nullptr));
        return result;
    }
    static VARIANT reference(Variant& variant) {
        VARIANT value = {};
        V_VT(&value) = VT_BYREF | VT_VARIANT;
        V_VARIANTREF(&value) = &variant.raw();
        return value;
    }
};

constexpr DISPID halve = 1, rename_text = 2, describe = 3, color = 4, font = 6, fail = 7, add = 8, turn = 9;

TEST_F(DispatchTest, FindsMembersByNameWhateverTheirCase) {
    EXPECT_EQ(halve, dispatch_id(as<IDispatch>().Get(), L"hALVE"));
    UINT count = 0;
    EXPECT_EQ(S_OK, as<IDispatch>()->GetTypeInfoCount(&count));
    EXPECT_EQ(1U, count);
    ComPtr<ITypeInfo> type;
    EXPECT_EQ(S_OK, as<IDispatch>()->GetTypeInfo(0, 0, &type));
    EXPECT_EQ(DISP_E_BADINDEX, as<IDispatch>()->GetTypeInfo(1, 0, &type));
}

TEST_F(DispatchTest, AVariantByReferenceServesATypedParameter) {
    Variant number(7);
    call(halve, DISPATCH_METHOD, {reference(number)});
    EXPECT_EQ("I2 3", number.describe());
    Variant text(L"name");
    call(rename_text, DISPATCH_METHOD, {reference(text)});
    EXPECT_EQ("\"name!\"", text.describe());
    Variant digits(L"9");
    call(halve, DISPATCH_METHOD, {reference(digits)});
    EXPECT_EQ("I2 4", digits.describe());
}

TEST_F(DispatchTest, AnEnumerationByReferenceIsALong) {
    Variant mode(std::int16_t{0});
    call(turn, DISPATCH_METHOD, {reference(mode)});
    EXPECT_EQ("I4 3", mode.describe());
}

TEST_F(DispatchTest, WhatTheMemberLeavesAloneKeepsItsType) {
    Variant first(5);
    EXPECT_EQ("I4 12", call(add, DISPATCH_METHOD, {reference(first), Variant(7).get()}).describe());
    EXPECT_EQ("I4 5", first.describe());
}

TEST_F(DispatchTest, AValueServesAParameterByReference) {
    EXPECT_EQ("I4 12", call(add, DISPATCH_METHOD, {Variant(5).get(), Variant(7).get()}).describe());
    EXPECT_EQ("I4 15", call(add, DISPATCH_METHOD, {Variant(L"5").get()}).describe());
}

TEST_F(DispatchTest, ATypedReferenceIsWrittenDirectly) {
    short number = 9;
    VARIANT argument = {};
    V_VT(&argument) = VT_BYREF | VT_I2;
    V_I2REF(&argument) = &number;
    call(halve, DISPATCH_METHOD, {argument});
    EXPECT_EQ(4, number);
}

TEST_F(DispatchTest, WhatDoesNotConvertIsRefused) {
    Variant large(100000);
    call_failing(halve, DISPATCH_METHOD, {reference(large)}, DISP_E_OVERFLOW);
    Variant words(L"words");
    call_failing(halve, DISPATCH_METHOD, {reference(words)}, DISP_E_TYPEMISMATCH);
    EXPECT_EQ("\"words\"", words.describe());
}

TEST_F(DispatchTest, AMissingMemberIsNotFound) {
    call_failing(99, DISPATCH_METHOD, {}, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(E_POINTER, as<IDispatch>()->Invoke(halve, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr,
                                                 nullptr, nullptr));
}

TEST_F(DispatchTest, ColorsAreSigned) {
    EXPECT_EQ("I4 -2147483643", call(color, DISPATCH_PROPERTYGET, {}).describe());
}

TEST_F(DispatchTest, AnObjectPropertyTakesAssignmentsWithAndWithoutSet) {
    const ComPtr<IDispatch> object = make_font(L"Arial", 12);
    call(font, DISPATCH_PROPERTYPUT, {Variant(object.Get()).get()});
    ComPtr<IDispatch> held;
    ASSERT_NE(nullptr, fixture().font.Get());
    ASSERT_EQ(S_OK, fixture().font.As(&held));
    EXPECT_EQ(object.Get(), held.Get());
    fixture().font = nullptr;
    call(font, DISPATCH_PROPERTYPUTREF, {Variant(object.Get()).get()});
    EXPECT_NE(nullptr, fixture().font.Get());
}

TEST_F(DispatchTest, AnObjectStandsForItsDefaultProperty) {
    fixture().text = u"inside";
    EXPECT_EQ("\"inside\"",
              call(describe, DISPATCH_METHOD, {Variant(as<IDispatch>().Get()).get()}).describe());
    EXPECT_EQ("\"5\"", call(describe, DISPATCH_METHOD, {Variant(5).get()}).describe());
}

TEST_F(DispatchTest, ErrorsReachTheScriptWithNumberSourceAndDescription) {
    com::set_error_source(u"Library");
    std::string seen = "none";
    try {
        call_method(as<IDispatch>().Get(), L"Fail", {Variant(11)});
    } catch (const CallFailed& failed) {
        seen = failed.failure().describe();
    }
    EXPECT_EQ("11 source \"Library\" description \"Division by zero\"", seen);
}

} // namespace
} // namespace vellora::test
