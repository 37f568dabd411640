// The type library inside the delivered file, as form designers, compilers and script engines read it.
#include "com/support/host_test.h"
#include "com/support/type_description.h"
#include "support/container/library.h"

namespace vellora::test {
namespace {

class TypeLibraryTest : public testing::Test {
protected:
    std::string member(const std::string& accessor) { return types_.function(L"_Vellora", accessor); }

    TypeDescription types_{Library::instance().path()};
};

TEST_F(TypeLibraryTest, NamesItself) {
    const Documentation library = documentation(types_.library());
    EXPECT_EQ(library.name, "VelloraCTL");
    EXPECT_EQ(library.help, "VelloraCTL multi-column combo box");
    TLIBATTR* attributes = nullptr;
    ASSERT_HRESULT_SUCCEEDED(types_.library()->GetLibAttr(&attributes));
    EXPECT_EQ(attributes->wMajorVerNum, 1);
    EXPECT_EQ(attributes->wMinorVerNum, 0);
    EXPECT_TRUE(attributes->guid == LIBID_VelloraCTL);
    EXPECT_EQ(attributes->syskind, sizeof(void*) == 4 ? SYS_WIN32 : SYS_WIN64);
    types_.library()->ReleaseTLibAttr(attributes);
}

TEST_F(TypeLibraryTest, TheClassIsAControlWithItsTwoInterfaces) {
    const ComPtr<ITypeInfo> coclass = types_.type(L"Vellora");
    EXPECT_EQ(type_flags(coclass.Get()), TYPEFLAG_FCONTROL | TYPEFLAG_FCANCREATE);
    const std::pair<const char*, INT> expected[] = {
        {"_Vellora", IMPLTYPEFLAG_FDEFAULT},
        {"__Vellora", IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE},
    };
    for (UINT i = 0; i < std::size(expected); ++i) {
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> implemented;
        INT flags = 0;
        ASSERT_HRESULT_SUCCEEDED(coclass->GetRefTypeOfImplType(i, &reference));
        ASSERT_HRESULT_SUCCEEDED(coclass->GetRefTypeInfo(reference, &implemented));
        ASSERT_HRESULT_SUCCEEDED(coclass->GetImplTypeFlags(i, &flags));
        EXPECT_EQ(documentation(implemented.Get()).name, expected[i].first);
        EXPECT_EQ(flags, expected[i].second);
    }
}

TEST_F(TypeLibraryTest, BothInterfacesStayOutOfSight) {
    EXPECT_EQ(type_flags(types_.type(L"_Vellora").Get()),
              TYPEFLAG_FHIDDEN | TYPEFLAG_FDUAL | TYPEFLAG_FNONEXTENSIBLE | TYPEFLAG_FDISPATCHABLE);
    EXPECT_EQ(type_flags(types_.type(L"__Vellora").Get()), TYPEFLAG_FHIDDEN | TYPEFLAG_FDISPATCHABLE);
}

TEST_F(TypeLibraryTest, Has111Members) {
    EXPECT_EQ(types_.functions(L"_Vellora").size(), 111U);
}

TEST_F(TypeLibraryTest, TextIsTheDefaultMemberAndBindable) {
    EXPECT_EQ(member("get Text"), "0 get Text() BSTR [bindable requestedit displaybind defaultbind]");
    EXPECT_EQ(member("put Text"), "0 put Text(BSTR) void [bindable requestedit displaybind defaultbind]");
}

TEST_F(TypeLibraryTest, SharedMembersHaveThePlatformsIdentifiers) {
    EXPECT_EQ(member("get BackColor"), "-501 get BackColor() stdole.OLE_COLOR");
    EXPECT_EQ(member("putref Font"), "-512 putref Font(stdole.IFontDisp*) void");
    EXPECT_EQ(member("get ForeColor"), "-513 get ForeColor() stdole.OLE_COLOR");
    EXPECT_EQ(member("put Enabled"), "-514 put Enabled(bool) void");
    EXPECT_EQ(member("get hWnd"), "-515 get hWnd() long [nonbrowsable]");
    EXPECT_EQ(member("get Picture"), "-523 get Picture() stdole.IPictureDisp*");
    EXPECT_EQ(member("call Refresh"), "-550 call Refresh() void");
    EXPECT_EQ(member("call About"), "-552 call About() void");
}

TEST_F(TypeLibraryTest, ObjectsAreSetAndNotLet) {
    for (const char* name : {"Font", "Picture", "HeaderIcons"}) {
        EXPECT_NE(member(std::string("putref ") + name), "") << name;
        EXPECT_EQ(member(std::string("put ") + name), "") << name;
    }
}

TEST_F(TypeLibraryTest, ArgumentsLeftOutHaveTheirDefaults) {
    EXPECT_EQ(member("call AddItem"), "201 call AddItem(VARIANT Item, short Index = -1) void");
    EXPECT_EQ(member("get List"), "202 get List(short ItemIndex, short TextCol = -1) VARIANT [nonbrowsable]");
    EXPECT_EQ(member("put List"),
              "202 put List(short ItemIndex, short TextCol = -1, VARIANT) void [nonbrowsable]");
    EXPECT_EQ(member("call FindItem"), "234 call FindItem(VARIANT Target, short SearchColumn = 0, "
                                       "long StartIndex = 1, vlFindOptions FindOptions = 0) long");
}

TEST_F(TypeLibraryTest, RemoveItemTakesItsIndexByReference) {
    EXPECT_EQ(member("call RemoveItem"), "203 call RemoveItem(short* ItemIndex) void");
}

TEST_F(TypeLibraryTest, RunTimeMembersAreNotForPropertyLists) {
    for (const char* name : {"ContainerHwnd", "ListCount", "NewIndex", "ItemData", "ListIndex", "Checked",
                             "CheckedCount", "ColumnOrder", "SelText", "SelStart", "SelLength"}) {
        EXPECT_NE(member(std::string("get ") + name).find("[nonbrowsable]"), std::string::npos) << name;
    }
}

TEST_F(TypeLibraryTest, EventsAreNumberedAndHandHandlersWhatTheyMayChange) {
    const Lines expected = {
        "1 call Change() void",
        "2 call Click() void",
        "3 call ColumnClick(short Index) void",
        "4 call DblClick() void",
        "5 call ItemCheck(short ItemIndex, bool State, bool* Cancel) void",
        "6 call KeyDown(short* KeyCode, short* Shift) void",
        "7 call KeyPress(short* KeyAscii) void",
        "8 call KeyUp(short* KeyCode, short* Shift) void",
        "9 call MouseDown(short* Button, short* Shift, float* X, float* Y) void",
        "10 call MouseMove(short* Button, short* Shift, float* X, float* Y) void",
        "11 call MouseUp(short* Button, short* Shift, float* X, float* Y) void",
        "12 call DropDown(vlDropDownState* State) void",
        "13 call ColumnReorder() void",
    };
    EXPECT_TRUE(same_lines(expected, types_.functions(L"__Vellora")));
}

TEST_F(TypeLibraryTest, EnumerationsHaveTheirValues) {
    EXPECT_TRUE(same_lines({"vlAscending = 0", "vlDescending = 1"}, types_.values(L"vlSortOrder")));
    EXPECT_TRUE(same_lines({"vlOpen = 0", "vlClosed = 1"}, types_.values(L"vlDropDownState")));
    EXPECT_TRUE(same_lines({"vlDDLeft = 0", "vlDDRight = 1", "vlDDCenter = 2"},
                           types_.values(L"vlDropDownAlignmentConstants")));
    EXPECT_TRUE(same_lines({"vlNone = 0", "vlContents = 1", "vlIncludeHeaders = 2"},
                           types_.values(L"vlAutoSizeConstants")));
    EXPECT_TRUE(same_lines({"vlNormal = 0", "vlToggle = 1"}, types_.values(L"vlButtonStyles")));
    EXPECT_TRUE(same_lines({"vlWholeWord = 0", "vlPartialWord = 1"}, types_.values(L"vlFindOptions")));
}

} // namespace
} // namespace vellora::test
