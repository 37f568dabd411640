// Failures on their way out of the library.
#include "com/guard.h"
#include "com/ole.h"
#include "runtime/host_error.h"
#include "support/container/text.h"

#include <gtest/gtest.h>
#include <new>

namespace vellora::test {
namespace {

using com::ComPtr;

struct Left {
    std::wstring source;
    std::wstring description;
};

Left left_error() {
    ComPtr<IErrorInfo> error;
    if (GetErrorInfo(0, &error) != S_OK)
        return {L"none", L"none"};
    Bstr source, description;
    error->GetSource(source.out());
    error->GetDescription(description.out());
    return {source.text(), description.text()};
}

HRESULT raised(std::int32_t number, const char16_t* source = u"", const char16_t* description = u"") {
    return com::guard(IID_IDispatch, [&] { throw HostError(number, source, description); });
}

TEST(Guard, RunTimeErrorsGetTheirFacility) {
    EXPECT_EQ(static_cast<HRESULT>(0x800A0006), raised(6));
    EXPECT_EQ(static_cast<HRESULT>(0x800A8B10), raised(35600));
}

TEST(Guard, ObjectErrorsTravelAsTheyAre) {
    EXPECT_EQ(static_cast<HRESULT>(0x800405F0), raised(error_number::invalid_column_index));
}

TEST(Guard, NumbersThatAreNoErrorsAreUnexpected) {
    EXPECT_EQ(E_UNEXPECTED, raised(0));
    EXPECT_EQ(E_UNEXPECTED, raised(70000));
}

TEST(Guard, TheHostsTextStandsInForAMissingDescription) {
    com::set_error_source(u"Library");
    raised(9);
    const Left standard = left_error();
    EXPECT_EQ(L"Library", standard.source);
    EXPECT_EQ(L"Subscript out of range", standard.description);
    raised(380, u"Combo1", u"Not now.");
    const Left own = left_error();
    EXPECT_EQ(L"Combo1", own.source);
    EXPECT_EQ(L"Not now.", own.description);
}

TEST(Guard, OtherFailuresLeaveNoOldDescription) {
    raised(9);
    EXPECT_EQ(DV_E_DVASPECT, com::guard([] { throw com::ComFailure(DV_E_DVASPECT); }));
    EXPECT_EQ(L"none", left_error().source);
    EXPECT_EQ(E_OUTOFMEMORY, com::guard([] { throw std::bad_alloc(); }));
    EXPECT_EQ(E_UNEXPECTED, com::guard([] { throw 1; }));
}

TEST(Guard, AResultOfItsOwnIsHandedOn) {
    EXPECT_EQ(S_FALSE, com::guard([] { return S_FALSE; }));
    EXPECT_EQ(S_OK, com::guard([] {}));
    EXPECT_EQ(E_POINTER, com::guard([] { com::need(nullptr); }));
}

} // namespace
} // namespace vellora::test
