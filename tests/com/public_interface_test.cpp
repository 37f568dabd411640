// How the members of the public interface take and hand out values, whatever each of them is for.
#include "com/support/host_test.h"
#include "support/container/text.h"

#include <ocidl.h>
#include <olectl.h>

#include <bit>
#include <string>

namespace vellora::test {
namespace {

class PublicInterface : public HostTest {
protected:
    void SetUp() override { control_ = vellora(place()); }

    ComPtr<_Vellora> control_;
};

std::wstring with_zero() {
    return {L"a\0b", 3};
}

TEST_F(PublicInterface, AMissingPlaceForAResultIsRefused) {
    EXPECT_EQ(E_POINTER, control_->get_Text(nullptr));
    EXPECT_EQ(E_POINTER, control_->get_ListCount(nullptr));
    EXPECT_EQ(E_POINTER, control_->get_List(0, -1, nullptr));
    EXPECT_EQ(E_POINTER, control_->get_Font(nullptr));
}

TEST_F(PublicInterface, AMissingArgumentByReferenceIsRefused) {
    EXPECT_EQ(E_POINTER, control_->RemoveItem(nullptr));
}

TEST_F(PublicInterface, ANullTextIsAnEmptyOne) {
    ASSERT_EQ(S_OK, control_->put_Text(nullptr));
    Bstr text(L"something");
    ASSERT_EQ(S_OK, control_->get_Text(text.out()));
    EXPECT_NE(nullptr, text.get());
    EXPECT_EQ(L"", text.text());
}

TEST_F(PublicInterface, TextsKeepTheirZeros) {
    const Bstr caption(with_zero());
    ASSERT_EQ(S_OK, control_->put_ColumnHeader(1, caption.get()));
    Bstr kept;
    ASSERT_EQ(S_OK, control_->get_ColumnHeader(1, kept.out()));
    EXPECT_EQ(with_zero(), kept.text());

    ASSERT_EQ(S_OK, control_->AddItem(Variant(with_zero()).get(), -1));
    Variant cell;
    ASSERT_EQ(S_OK, control_->get_List(0, -1, cell.out()));
    EXPECT_EQ(with_zero(), cell.text());
}

TEST_F(PublicInterface, AFailedReadLeavesNothingBehind) {
    auto header = reinterpret_cast<BSTR>(1);
    EXPECT_TRUE(FAILED(control_->get_ColumnHeader(2, &header)));
    EXPECT_EQ(nullptr, header);

    VARIANT cell;
    cell.vt = VT_BSTR;
    EXPECT_TRUE(FAILED(control_->get_List(0, -1, &cell)));
    EXPECT_EQ(VT_EMPTY, cell.vt);
}

TEST_F(PublicInterface, AnythingButZeroIsTrueAndTrueIsMinusOne) {
    ASSERT_EQ(S_OK, control_->put_AutoComplete(1));
    VARIANT_BOOL kept = 0;
    ASSERT_EQ(S_OK, control_->get_AutoComplete(&kept));
    EXPECT_EQ(VARIANT_TRUE, kept);
    ASSERT_EQ(S_OK, control_->put_AutoComplete(VARIANT_FALSE));
    ASSERT_EQ(S_OK, control_->get_AutoComplete(&kept));
    EXPECT_EQ(VARIANT_FALSE, kept);
}

TEST_F(PublicInterface, NumbersOutsideAnEnumerationPass) {
    ASSERT_EQ(S_OK, control_->put_AutoSize(std::bit_cast<vlAutoSizeConstants>(5)));
    vlAutoSizeConstants kept = vlNone;
    ASSERT_EQ(S_OK, control_->get_AutoSize(&kept));
    EXPECT_EQ(5, static_cast<int>(kept));
}

TEST_F(PublicInterface, ColoursOfTheSystemPass) {
    ASSERT_EQ(S_OK, control_->put_BackColor(0x8000000F));
    OLE_COLOR kept = 0;
    ASSERT_EQ(S_OK, control_->get_BackColor(&kept));
    EXPECT_EQ(0x8000000FU, kept);
}

TEST_F(PublicInterface, TheFontIsTheObjectThatWasGiven) {
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = const_cast<LPOLESTR>(L"Tahoma");
    description.cySize.int64 = 120000; // 12 points
    description.sWeight = FW_NORMAL;
    ComPtr<IFontDisp> font;
    ASSERT_EQ(S_OK, OleCreateFontIndirect(&description, IID_IFontDisp, &font));
    ASSERT_EQ(S_OK, control_->putref_Font(font.Get()));
    ComPtr<IFontDisp> kept;
    ASSERT_EQ(S_OK, control_->get_Font(&kept));
    EXPECT_EQ(font.Get(), kept.Get());
}

TEST_F(PublicInterface, NoFontIsAnInvalidValue) {
    const HRESULT result = control_->putref_Font(nullptr);
    EXPECT_EQ(bad_value(), failure_of(control_.Get(), __uuidof(_Vellora), result).describe());
}

TEST_F(PublicInterface, NoPictureIsNothing) {
    ASSERT_EQ(S_OK, control_->putref_Picture(nullptr));
    ComPtr<IPictureDisp> kept;
    ASSERT_EQ(S_OK, control_->get_Picture(&kept));
    EXPECT_EQ(nullptr, kept.Get());
}

} // namespace
} // namespace vellora::test
