// The object itself: identity, aggregation, lifetime, and the interfaces that only describe it.
#include "com/live_object.h"
#include "hosting/support/hosting_test.h"
#include "support/container/text.h"

#include <objsafe.h>

namespace vellora::test {
namespace {

using ControlObjectTest = HostingTest;

class Outer final : public IUnknown {
public:
    ~Outer() { inner.Reset(); }
    STDMETHODIMP QueryInterface(REFIID id, void** out) override {
        if (id != IID_IUnknown)
            return inner->QueryInterface(id, out);
        *out = this;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
    STDMETHODIMP_(ULONG) Release() override { return --references; }

    ULONG references = 1;
    ComPtr<IUnknown> inner;
};

TEST_F(ControlObjectTest, HasOneIdentityOnAllInterfaces) {
    for (const IID& id : {IID_IOleObject, IID_IViewObjectEx, IID_IDispatch, IID_IPersistStorage}) {
        ComPtr<IUnknown> part, identity;
        ASSERT_EQ(S_OK, control()->QueryInterface(id, &part));
        ASSERT_EQ(S_OK, part.As(&identity));
        EXPECT_EQ(control(), identity.Get());
    }
    ComPtr<IUnknown> none;
    EXPECT_EQ(E_NOINTERFACE, control()->QueryInterface(IID_IMarshal, &none));
    EXPECT_EQ(E_POINTER, control()->QueryInterface(IID_IUnknown, nullptr));
}

TEST_F(ControlObjectTest, EndsWithItsLastReference) {
    ASSERT_NE(nullptr, FixtureControl::last);
    EXPECT_TRUE(com::library_in_use());
    release();
    EXPECT_EQ(nullptr, FixtureControl::last);
    EXPECT_FALSE(com::library_in_use());
}

TEST_F(ControlObjectTest, ShowsTheIdentityOfTheObjectAroundIt) {
    Outer outer;
    outer.inner = make_fixture(&outer);
    ComPtr<IOleObject> part;
    ComPtr<IUnknown> identity;
    ASSERT_EQ(S_OK, outer.inner.As(&part));
    EXPECT_EQ(2U, outer.references);
    ASSERT_EQ(S_OK, part.As(&identity));
    EXPECT_EQ(&outer, identity.Get());
    ComPtr<IConnectionPointContainer> points;
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(S_OK, part.As(&points));
    EXPECT_EQ(S_OK, points->FindConnectionPoint(IID_IPropertyNotifySink, &point));
}

TEST_F(ControlObjectTest, GivesOnlyItsUnknownToAnObjectAroundIt) {
    Outer outer;
    ComPtr<IOleObject> object;
    EXPECT_EQ(CLASS_E_NOAGGREGATION,
              com::ControlObject::create(fixture_class, nullptr, &outer, IID_PPV_ARGS(&object)));
}

TEST_F(ControlObjectTest, AFailedCreationLeavesNothing) {
    release();
    ComPtr<IUnknown> object;
    const com::ClientFactory failing = [](com::ControlHost&) -> std::unique_ptr<com::ControlClient> {
        throw std::bad_alloc();
    };
    EXPECT_EQ(E_OUTOFMEMORY,
              com::ControlObject::create(fixture_class, failing, nullptr, IID_PPV_ARGS(&object)));
    EXPECT_FALSE(com::library_in_use());
}

TEST_F(ControlObjectTest, TellsItsClassItsEventsAndItsStatus) {
    GUID id = {};
    EXPECT_EQ(S_OK, as<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &id));
    EXPECT_TRUE(id == __uuidof(DFixtureEvents));
    EXPECT_EQ(E_INVALIDARG, as<IProvideClassInfo2>()->GetGUID(99, &id));
    ComPtr<ITypeInfo> type;
    Bstr name;
    ASSERT_EQ(S_OK, as<IProvideClassInfo>()->GetClassInfo(&type));
    ASSERT_EQ(S_OK, type->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr));
    EXPECT_EQ(L"Fixture", name.text());
    DWORD status = 0;
    EXPECT_EQ(S_OK, as<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &status));
    EXPECT_EQ(DWORD{0x20191}, status);
    EXPECT_EQ(DV_E_DVASPECT, as<IOleObject>()->GetMiscStatus(DVASPECT_ICON, &status));
}

TEST_F(ControlObjectTest, HasNoPropertyPages) {
    CAUUID pages = {7, nullptr};
    EXPECT_EQ(S_OK, as<ISpecifyPropertyPages>()->GetPages(&pages));
    EXPECT_EQ(0U, pages.cElems);
    CLSID page = {};
    EXPECT_EQ(PERPROP_E_NOPAGEAVAILABLE, as<IPerPropertyBrowsing>()->MapPropertyToPage(0, &page));
}

TEST_F(ControlObjectTest, OffersTheMembersOfAnEnumeration) {
    const auto browsing = as<IPerPropertyBrowsing>();
    constexpr DISPID mode = 5;
    CALPOLESTR texts = {};
    CADWORD cookies = {};
    ASSERT_EQ(S_OK, browsing->GetPredefinedStrings(mode, &texts, &cookies));
    ASSERT_EQ(2U, texts.cElems);
    EXPECT_STREQ(L"0 - fixPlain", texts.pElems[0]);
    EXPECT_STREQ(L"3 - fixFancy", texts.pElems[1]);
    Variant value;
    EXPECT_EQ(S_OK, browsing->GetPredefinedValue(mode, cookies.pElems[1], value.out()));
    EXPECT_EQ("I4 3", value.describe());
    for (ULONG i = 0; i < texts.cElems; ++i)
        CoTaskMemFree(texts.pElems[i]);
    CoTaskMemFree(texts.pElems);
    CoTaskMemFree(cookies.pElems);
    fixture().mode = fixFancy;
    Bstr shown;
    EXPECT_EQ(S_OK, browsing->GetDisplayString(mode, shown.out()));
    EXPECT_EQ(L"3 - fixFancy", shown.text());
    EXPECT_EQ(S_FALSE, browsing->GetDisplayString(DISPID_VALUE, shown.out()));
}

TEST_F(ControlObjectTest, PutsPropertiesIntoGroups) {
    ComPtr<com::ICategorizeProperties> categories;
    ASSERT_EQ(S_OK, control()->QueryInterface(com::IID_ICategorizeProperties, &categories));
    int category = 0;
    EXPECT_EQ(S_OK, categories->MapPropertyToCategory(DISPID_VALUE, &category));
    EXPECT_EQ(-9, category);
    EXPECT_TRUE(FAILED(categories->MapPropertyToCategory(5, &category)));
}

TEST_F(ControlObjectTest, IsSafeForScriptsAndTheirData) {
    ComPtr<IObjectSafety> safety;
    ASSERT_EQ(S_OK, control()->QueryInterface(IID_IObjectSafety, &safety));
    DWORD supported = 0, enabled = 1;
    ASSERT_EQ(S_OK, safety->GetInterfaceSafetyOptions(IID_IDispatch, &supported, &enabled));
    EXPECT_EQ(3U, supported);
    EXPECT_EQ(0U, enabled);
    EXPECT_EQ(S_OK, safety->SetInterfaceSafetyOptions(IID_IDispatch, 2, 2));
    EXPECT_EQ(com::StoredObjects::standard, fixture().host().stored_objects());
    EXPECT_EQ(S_OK, safety->SetInterfaceSafetyOptions(IID_IDispatch, 2, 0));
    EXPECT_EQ(com::StoredObjects::any, fixture().host().stored_objects());
    EXPECT_EQ(E_FAIL, safety->SetInterfaceSafetyOptions(IID_IDispatch, 8, 8));
    EXPECT_EQ(E_NOINTERFACE, safety->SetInterfaceSafetyOptions(IID_IMarshal, 1, 1));
}

TEST_F(ControlObjectTest, TellsWhichInterfacesDescribeTheirErrors) {
    const auto errors = as<ISupportErrorInfo>();
    EXPECT_EQ(S_OK, errors->InterfaceSupportsErrorInfo(__uuidof(IFixture)));
    EXPECT_EQ(S_OK, errors->InterfaceSupportsErrorInfo(IID_IPersistPropertyBag));
    EXPECT_EQ(S_FALSE, errors->InterfaceSupportsErrorInfo(IID_IOleObject));
}

} // namespace
} // namespace vellora::test
