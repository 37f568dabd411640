// The doors through which settings come and go, and the rule that a control is initialised once.
#include "hosting/support/hosting_test.h"
#include "support/container/own_object.h"
#include "support/container/property_bag.h"

#include <algorithm>
#include <shlwapi.h>

namespace vellora::test {
namespace {

/// Takes nothing.
class FullStream final : public OwnObject<IStream> {
public:
    FullStream() : OwnObject({IID_IStream, IID_ISequentialStream}) {}
    STDMETHODIMP Read(void*, ULONG, ULONG*) override { return E_NOTIMPL; }
    STDMETHODIMP Write(const void*, ULONG, ULONG* written) override {
        *written = 0;
        return S_OK;
    }
    STDMETHODIMP Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override { return E_NOTIMPL; }
    STDMETHODIMP SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    STDMETHODIMP CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP Commit(DWORD) override { return S_OK; }
    STDMETHODIMP Revert() override { return S_OK; }
    STDMETHODIMP LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Clone(IStream**) override { return E_NOTIMPL; }
};

class PersistenceTest : public HostingTest {
protected:
    static std::ptrdiff_t count(const std::string& line) {
        const Lines lines = fixture().take_lines();
        return std::count(lines.begin(), lines.end(), line);
    }
    void fill() {
        on_form();
        fixture().text = u"kept";
        const ComPtr<IDispatch> font = make_font(L"Arial", 14);
        ComPtr<IFont> look;
        ASSERT_EQ(S_OK, font.As(&fixture().font));
        ASSERT_EQ(S_OK, font.As(&look));
        ASSERT_EQ(S_OK, look->put_Bold(TRUE));
    }
    static void expect_filled(FixtureControl& loaded) {
        EXPECT_EQ(u"kept", loaded.text);
        const ComPtr<IFontDisp> held = loaded.font;
        ComPtr<IFont> font;
        BOOL bold = FALSE;
        ASSERT_NE(nullptr, held.Get());
        ASSERT_EQ(S_OK, held.As(&font));
        EXPECT_EQ(S_OK, font->get_Bold(&bold));
        EXPECT_TRUE(bold);
    }
    static void rewind(IStream* stream) { ASSERT_EQ(S_OK, stream->Seek({}, STREAM_SEEK_SET, nullptr)); }
};

TEST_F(PersistenceTest, ThroughAPropertyBag) {
    fill();
    const ComPtr<PropertyBag> bag(new PropertyBag);
    ASSERT_EQ(S_OK, as<IPersistPropertyBag>()->Save(bag.Get(), TRUE, TRUE));
    const ComPtr<IUnknown> other = make_fixture();
    ComPtr<IPersistPropertyBag> door;
    ASSERT_EQ(S_OK, other.As(&door));
    ASSERT_EQ(S_OK, door->Load(bag.Get(), nullptr));
    expect_filled(fixture());
}

TEST_F(PersistenceTest, ThroughAStream) {
    fill();
    const ComPtr<IStream> stream = com::adopt(SHCreateMemStream(nullptr, 0));
    ULARGE_INTEGER largest = {}, written = {};
    ASSERT_EQ(S_OK, as<IPersistStreamInit>()->GetSizeMax(&largest));
    ASSERT_EQ(S_OK, as<IPersistStreamInit>()->Save(stream.Get(), TRUE));
    ASSERT_EQ(S_OK, stream->Seek({}, STREAM_SEEK_CUR, &written));
    EXPECT_EQ(largest.QuadPart, written.QuadPart);
    rewind(stream.Get());
    const ComPtr<IUnknown> other = make_fixture();
    ComPtr<IPersistStream> door;
    ASSERT_EQ(S_OK, other->QueryInterface(IID_IPersistStream, &door));
    ASSERT_EQ(S_OK, door->Load(stream.Get()));
    expect_filled(fixture());
}

TEST_F(PersistenceTest, ThroughMemory) {
    fill();
    fixture().host().property_changed(u"Text");
    ULONG size = 0;
    ASSERT_EQ(S_OK, as<IPersistMemory>()->GetSizeMax(&size));
    std::vector<BYTE> memory(size + 8, 0xCC);
    for (ULONG less = 0; less < size; ++less)
        EXPECT_EQ(E_INVALIDARG, as<IPersistMemory>()->Save(memory.data(), TRUE, less));
    EXPECT_EQ(std::vector<BYTE>(size + 8, 0xCC), memory);
    EXPECT_EQ(S_OK, as<IPersistMemory>()->IsDirty());
    ASSERT_EQ(S_OK, as<IPersistMemory>()->Save(memory.data(), TRUE, size));
    EXPECT_EQ(S_FALSE, as<IPersistMemory>()->IsDirty());
    EXPECT_EQ(8, std::count(memory.end() - 8, memory.end(), 0xCC));
    const ComPtr<IUnknown> other = make_fixture();
    ComPtr<IPersistMemory> door;
    ASSERT_EQ(S_OK, other.As(&door));
    for (ULONG less = 0; less < size; ++less)
        EXPECT_EQ(STG_E_DOCFILECORRUPT, door->Load(memory.data(), less)) << less;
    EXPECT_EQ(u"", fixture().text);
    ASSERT_EQ(S_OK, door->Load(memory.data(), size));
    expect_filled(fixture());
    EXPECT_EQ(E_UNEXPECTED, door->InitNew());
    EXPECT_EQ(E_POINTER, door->Load(nullptr, size));
    EXPECT_EQ(E_POINTER, door->Save(nullptr, FALSE, size));
    EXPECT_EQ(E_POINTER, door->GetSizeMax(nullptr));
}

TEST_F(PersistenceTest, EveryDoorIsFoundAndKnowsTheClass) {
    for (const IID& id : {IID_IPersist, IID_IPersistStream, IID_IPersistStreamInit, IID_IPersistStorage,
                          IID_IPersistMemory, IID_IPersistPropertyBag}) {
        ComPtr<IPersist> door;
        CLSID class_id = CLSID_NULL;
        ASSERT_EQ(S_OK, control()->QueryInterface(id, &door));
        EXPECT_EQ(S_OK, door->GetClassID(&class_id));
        EXPECT_EQ(fixture_class.class_id, class_id);
        EXPECT_EQ(E_POINTER, door->GetClassID(nullptr));
    }
}

TEST_F(PersistenceTest, WhatCouldNotBeWrittenIsStillUnsaved) {
    fill();
    fixture().host().property_changed(u"Text");
    const ComPtr<IStream> full(new FullStream);
    EXPECT_EQ(STG_E_MEDIUMFULL, as<IPersistStreamInit>()->Save(full.Get(), TRUE));
    EXPECT_EQ(S_OK, as<IPersistStreamInit>()->IsDirty());
    EXPECT_EQ(E_POINTER, as<IPersistStreamInit>()->Save(nullptr, TRUE));
    EXPECT_EQ(S_OK, as<IPersistStreamInit>()->IsDirty());
}

TEST_F(PersistenceTest, ADamagedStreamLeavesTheControlAsItWas) {
    fill();
    fixture().take_lines();
    const ComPtr<IStream> stream = com::adopt(SHCreateMemStream(nullptr, 0));
    ASSERT_EQ(S_OK, as<IPersistStreamInit>()->Save(stream.Get(), TRUE));
    ULARGE_INTEGER size = {};
    ASSERT_EQ(S_OK, stream->Seek({}, STREAM_SEEK_CUR, &size));
    --size.QuadPart;
    ASSERT_EQ(S_OK, stream->SetSize(size));
    rewind(stream.Get());
    EXPECT_EQ(STG_E_DOCFILECORRUPT, as<IPersistStreamInit>()->Load(stream.Get()));
    EXPECT_EQ(0, count("load"));
    expect_filled(fixture());
}

TEST_F(PersistenceTest, ThroughAStorage) {
    fill();
    ComPtr<ILockBytes> bytes;
    ComPtr<IStorage> storage;
    ASSERT_EQ(S_OK, CreateILockBytesOnHGlobal(nullptr, TRUE, &bytes));
    ASSERT_EQ(S_OK, StgCreateDocfileOnILockBytes(
                        bytes.Get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, &storage));
    fixture().host().property_changed(u"Text");
    // A copy elsewhere, then the same taken for its own.
    ASSERT_EQ(S_OK, as<IPersistStorage>()->Save(storage.Get(), FALSE));
    EXPECT_EQ(S_OK, as<IPersistStorage>()->IsDirty());
    ASSERT_EQ(S_OK, as<IPersistStorage>()->SaveCompleted(nullptr));
    EXPECT_EQ(S_OK, as<IPersistStorage>()->IsDirty());
    ASSERT_EQ(S_OK, as<IPersistStorage>()->SaveCompleted(storage.Get()));
    EXPECT_EQ(S_FALSE, as<IPersistStorage>()->IsDirty());
    fixture().host().property_changed(u"Text");
    ASSERT_EQ(S_OK, as<IPersistStorage>()->Save(storage.Get(), TRUE));
    EXPECT_EQ(S_OK, as<IPersistStorage>()->IsDirty());
    ASSERT_EQ(S_OK, as<IPersistStorage>()->SaveCompleted(nullptr));
    EXPECT_EQ(S_FALSE, as<IPersistStorage>()->IsDirty());
    const ComPtr<IUnknown> other = make_fixture();
    ComPtr<IPersistStorage> door;
    ASSERT_EQ(S_OK, other.As(&door));
    ASSERT_EQ(S_OK, door->Load(storage.Get()));
    expect_filled(fixture());
}

TEST_F(PersistenceTest, AnEmptyBagIsNoError) {
    const ComPtr<PropertyBag> bag(new PropertyBag);
    EXPECT_EQ(S_OK, as<IPersistPropertyBag>()->Load(bag.Get(), nullptr));
    EXPECT_EQ(u"", fixture().text);
    EXPECT_EQ(E_POINTER, as<IPersistPropertyBag>()->Load(nullptr, nullptr));
}

TEST_F(PersistenceTest, AValueOfAnotherTypeIsNotTakenForAbsent) {
    const ComPtr<PropertyBag> bag(new PropertyBag);
    bag->put(L"Text", Variant(25));
    EXPECT_EQ(S_OK, as<IPersistPropertyBag>()->Load(bag.Get(), nullptr));
    EXPECT_EQ(u"25", fixture().text);
}

TEST_F(PersistenceTest, ABrokenStreamIsReported) {
    const ComPtr<IStream> stream = com::adopt(SHCreateMemStream(nullptr, 0));
    EXPECT_EQ(STG_E_DOCFILECORRUPT, as<IPersistStreamInit>()->Load(stream.Get()));
    EXPECT_EQ(E_POINTER, as<IPersistStreamInit>()->Load(nullptr));
}

TEST_F(PersistenceTest, DefaultsWaitForTheContainer) {
    Site& site = container_.add_site(L"Late1", {0, 0, 100, 20});
    ASSERT_EQ(S_OK, as<IPersistStreamInit>()->InitNew());
    EXPECT_EQ(0, count("new"));
    site.take(control());
    ASSERT_EQ(S_OK, site.give_site());
    EXPECT_EQ(1, count("new"));
    EXPECT_EQ(u"Late1", fixture().text);
}

TEST_F(PersistenceTest, InitialisesOnlyOnce) {
    on_form();
    EXPECT_EQ(E_UNEXPECTED, as<IPersistStreamInit>()->InitNew());
    EXPECT_EQ(E_UNEXPECTED, as<IPersistPropertyBag>()->InitNew());
    EXPECT_EQ(0, count("new"));
}

TEST_F(PersistenceTest, AControlThatIsUsedHasItsDefaults) {
    Site& site = container_.add_site(L"Fixture1", {0, 0, 100, 20});
    site.take(control());
    ASSERT_EQ(S_OK, site.give_site());
    EXPECT_EQ(0, count("new"));
    ASSERT_EQ(S_OK, site.activate());
    EXPECT_EQ(1, count("new"));
    EXPECT_EQ(S_OK, as<IPersistStreamInit>()->InitNew());
    EXPECT_EQ(0, count("new"));
}

TEST_F(PersistenceTest, ALoadedControlIsNotInitialised) {
    const ComPtr<PropertyBag> bag(new PropertyBag);
    ASSERT_EQ(S_OK, as<IPersistPropertyBag>()->Load(bag.Get(), nullptr));
    Site& site = container_.add_site(L"Fixture1", {0, 0, 100, 20});
    site.take(control());
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.activate());
    EXPECT_EQ(0, count("new"));
}

TEST_F(PersistenceTest, AQuickContainerSaysEverythingAtOnce) {
    Site& site = container_.add_site(L"Fixture1", {0, 0, 100, 20});
    ComPtr<IOleClientSite> client_site;
    ASSERT_EQ(S_OK, site.QueryInterface(IID_PPV_ARGS(&client_site)));
    const ComPtr<EventSink> sink(new EventSink);
    QACONTAINER container = {};
    container.cbSize = sizeof container;
    container.pClientSite = client_site.Get();
    container.pUnkEventSink = sink.Get();
    QACONTROL answer = {};
    answer.cbSize = sizeof answer;
    ASSERT_EQ(S_OK, as<IQuickActivate>()->QuickActivate(&container, &answer));
    EXPECT_EQ(com::misc_status, answer.dwMiscStatus);
    EXPECT_NE(0U, answer.dwEventCookie);
    EXPECT_EQ(0U, answer.dwPropNotifyCookie);
    fixture().host().fire(1);
    EXPECT_EQ(1U, sink->take().size());
    EXPECT_EQ(u"Fixture1", fixture().host().display_name());
    ASSERT_EQ(S_OK, as<IOleObject>()->SetClientSite(nullptr));
}

} // namespace
} // namespace vellora::test
