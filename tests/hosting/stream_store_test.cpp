// The control's own stream format, also in the hands of somebody who means harm.
#include "com/bstr.h"
#include "com/guard.h"
#include "com/stream_store.h"
#include "runtime/host_error.h"
#include "support/container/ambients.h"
#include "support/container/own_object.h"
#include "support/container/text.h"
#include "support/container/variant.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <shlwapi.h>

namespace vellora::test {
namespace {

using com::ComPtr;
using com::StoredObjects;
using com::StreamStore;
using Content = std::vector<BYTE>;

constexpr auto class_bytes = [](int kind) {
    std::array<std::byte, 16> bytes{};
    constexpr unsigned char shared[] = {0x52, 0xE3, 0x0B, 0x91, 0x8F, 0xCE, 0x11, 0x9D,
                                        0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51};
    bytes[0] = static_cast<std::byte>(kind);
    for (std::size_t at = 0; at < sizeof shared; ++at)
        bytes[at + 1] = static_cast<std::byte>(shared[at]);
    return bytes;
};
constexpr auto standard_font = class_bytes(0x03);
constexpr auto standard_picture = class_bytes(0x04);

ComPtr<IStream> stream_of(const Content& content) {
    return com::adopt(SHCreateMemStream(content.data(), static_cast<UINT>(content.size())));
}

Content content_of(const StreamStore& store) {
    const Bytes bytes = store.content();
    const auto first = reinterpret_cast<const BYTE*>(bytes.data());
    return {first, first + bytes.size()};
}

std::string value_in(StreamStore& store, std::u16string_view name) {
    const auto value = store.read(name, VT_EMPTY);
    return value ? Variant(value->get()).describe() : "absent";
}

ComPtr<IFont> bold_font() {
    const ComPtr<IDispatch> font = make_font(L"Arial", 12);
    ComPtr<IFont> look;
    EXPECT_EQ(S_OK, font.As(&look));
    EXPECT_EQ(S_OK, look->put_Bold(TRUE));
    return look;
}

StreamStore filled() {
    StreamStore store;
    store.write(u"Text", Variant(L"a text").get());
    store.write(u"Columns", Variant(std::int16_t{3}).get());
    store.write(u"Width", Variant(2.5F).get());
    store.write(u"Enabled", Variant(true).get());
    store.write(u"Font", com::Variant(bold_font().Get()).get());
    return store;
}

/// What comes of loading the content and reading all of it.
HRESULT outcome(const Content& content, StoredObjects objects = StoredObjects::any) {
    return com::guard([&] {
        StreamStore store(objects);
        store.load(stream_of(content).Get());
        for (const auto* name : {u"Text", u"Columns", u"Width", u"Enabled", u"Font"})
            store.read(name, VT_EMPTY);
    });
}

TEST(StreamStore, GivesBackWhatWasWritten) {
    StreamStore loaded;
    loaded.load(stream_of(content_of(filled())).Get());
    EXPECT_EQ("\"a text\"", value_in(loaded, u"Text"));
    EXPECT_EQ("I2 3", value_in(loaded, u"Columns"));
    EXPECT_EQ("R4 2.5", value_in(loaded, u"Width"));
    EXPECT_EQ("True", value_in(loaded, u"Enabled"));
    EXPECT_EQ("absent", value_in(loaded, u"Height"));
    const ComPtr<IFont> font = loaded.read(u"Font", VT_UNKNOWN)->object_as<IFont>();
    BOOL bold = FALSE;
    ASSERT_NE(nullptr, font.Get());
    EXPECT_EQ(S_OK, font->get_Bold(&bold));
    EXPECT_TRUE(bold);
}

TEST(StreamStore, TheLaterValueOfANameStays) {
    StreamStore store;
    store.write(u"Color", Variant(1).get());
    store.write(u"Other", Variant(2).get());
    store.write(u"Color", Variant(3).get());
    StreamStore loaded;
    loaded.load(stream_of(content_of(store)).Get());
    EXPECT_EQ("I4 3", value_in(loaded, u"Color"));
}

TEST(StreamStore, NothingIsKeptAsNothing) {
    StreamStore store;
    store.write(u"Icons", Variant(static_cast<IDispatch*>(nullptr)).get());
    StreamStore loaded;
    loaded.load(stream_of(content_of(store)).Get());
    const auto value = loaded.read(u"Icons", VT_UNKNOWN);
    ASSERT_TRUE(value && value->is_object());
    EXPECT_EQ(nullptr, value->object().Get());
}

TEST(StreamStore, LeavesTheRestOfTheStreamAlone) {
    Content content = content_of(filled());
    const auto end = static_cast<ULONGLONG>(content.size());
    content.push_back(0x7F);
    const ComPtr<IStream> stream = stream_of(content);
    StreamStore loaded;
    loaded.load(stream.Get());
    ULARGE_INTEGER position = {};
    EXPECT_EQ(S_OK, stream->Seek({}, STREAM_SEEK_CUR, &position));
    EXPECT_EQ(end, position.QuadPart);
}

TEST(StreamStore, EveryShortenedStreamFails) {
    const Content whole = content_of(filled());
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_TRUE(
            FAILED(outcome(Content(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)))))
            << length;
    EXPECT_EQ(S_OK, outcome(whole));
}

TEST(StreamStore, NoFlippedBitDoesHarm) {
    const Content whole = content_of(filled());
    int failures = 0;
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        Content content = whole;
        content[bit / 8] = static_cast<BYTE>(content[bit / 8] ^ (1U << (bit % 8)));
        failures += FAILED(outcome(content, StoredObjects::standard)) ? 1 : 0;
    }
    EXPECT_GT(failures, 8 * 8); // mark, version and length at the least
}

TEST(StreamStore, AnInventedLengthCostsNothing) {
    Content content = content_of(StreamStore());
    for (const std::uint32_t length : {1U, 0x3FFFFFFU, 0xFFFFFFFFU}) {
        std::memcpy(content.data() + 8, &length, sizeof length);
        EXPECT_EQ(STG_E_DOCFILECORRUPT, outcome(content)) << length;
    }
}

TEST(StreamStore, AnotherVersionIsNotGuessedAt) {
    Content content = content_of(StreamStore());
    content[4] = 2;
    EXPECT_EQ(STG_E_OLDDLL, outcome(content));
    content[4] = 1;
    content[6] = 9; // a later minor version
    EXPECT_EQ(S_OK, outcome(content));
}

TEST(StreamStore, OnlyStandardObjectsComeFromUntrustedData) {
    Content content = content_of(filled());
    EXPECT_EQ(S_OK, outcome(content, StoredObjects::standard));
    const BYTE font_class[] = {0x03, 0x52, 0xE3, 0x0B};
    const auto found =
        std::search(content.begin(), content.end(), std::begin(font_class), std::end(font_class));
    ASSERT_NE(content.end(), found);
    *found = 0x77;
    EXPECT_EQ(E_ACCESSDENIED, outcome(content, StoredObjects::standard));
}

TEST(StreamStore, AnObjectComesToLifeOnlyWhereOneIsWanted) {
    StreamStore store;
    store.write(u"Text", com::Variant(bold_font().Get()).get());
    EXPECT_TRUE(store.read(u"Text", VT_UNKNOWN)->is_object());
    EXPECT_EQ(static_cast<HRESULT>(0x800A000D), com::guard([&] { store.read(u"Text", VT_BSTR); }));
}

TEST(StreamStore, AStateThatClaimsMoreThanThereIsFails) {
    // A picture as the platform keeps it: a mark, a length, the picture.
    for (const std::uint32_t claimed : {100U, 0x04000000U, 0x7FFFFFFFU}) {
        SettingObject picture{standard_picture, Bytes(8)};
        std::memcpy(picture.state.data(), "lt\0\0", 4);
        std::memcpy(picture.state.data() + 4, &claimed, sizeof claimed);
        EXPECT_TRUE(
            FAILED(com::guard([&] { com::live_object(picture, StoredObjects::standard); })))
            << claimed;
    }
    for (std::size_t size = 0; size < 11; ++size)
        com::guard([&] { com::live_object({standard_font, Bytes(size)}, StoredObjects::standard); });
}

/// An object whose saved state holds an object of its own class, and so on without end; it saves itself within itself.
class Endless final : public OwnObject<IPersistStream> {
public:
    static constexpr CLSID class_id = {
        0x3A1C9D52, 0x55B0, 0x4A7E, {0x9B, 0x1F, 0x60, 0x0C, 0x11, 0xE4, 0x72, 0xA9}};
    static int loads;
    static int saves;

    Endless() : OwnObject({IID_IPersist, IID_IPersistStream}) {}
    static SettingObject stored() {
        SettingObject object{{}, Bytes(1)};
        std::memcpy(object.class_id.data(), &class_id, sizeof class_id);
        return object;
    }
    STDMETHODIMP GetClassID(CLSID* id) override {
        *id = class_id;
        return S_OK;
    }
    STDMETHODIMP IsDirty() override { return S_FALSE; }
    STDMETHODIMP Load(IStream*) override {
        ++loads;
        return com::guard([] { com::live_object(stored(), StoredObjects::any); });
    }
    STDMETHODIMP Save(IStream*, BOOL) override {
        ++saves;
        return saves > 100 ? E_FAIL : com::guard([this] { com::stored_object(this); });
    }
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }
};
int Endless::loads = 0;
int Endless::saves = 0;

class EndlessFactory final : public OwnObject<IClassFactory> {
public:
    EndlessFactory() : OwnObject({IID_IClassFactory}) {}
    STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** object) override {
        const ComPtr<Endless> made(new Endless);
        return made->QueryInterface(id, object);
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

TEST(StreamStore, ObjectsWithinObjectsComeToAnEnd) {
    const ComPtr<EndlessFactory> factory(new EndlessFactory);
    DWORD cookie = 0;
    ASSERT_EQ(S_OK, CoRegisterClassObject(Endless::class_id, factory.Get(), CLSCTX_INPROC_SERVER,
                                          REGCLS_MULTIPLEUSE, &cookie));
    EXPECT_EQ(STG_E_DOCFILECORRUPT,
              com::guard([] { com::live_object(Endless::stored(), StoredObjects::any); }));
    EXPECT_EQ(16, Endless::loads);
    EXPECT_EQ(S_OK, CoRevokeClassObject(cookie));
    EXPECT_EQ(STG_E_CANTSAVE, com::guard([] { com::stored_object(ComPtr<Endless>(new Endless).Get()); }));
    EXPECT_EQ(16, Endless::saves);
    // The next one starts from nothing.
    EXPECT_TRUE(com::stored_object(bold_font().Get()));
    EXPECT_NE(nullptr, com::live_object(*com::stored_object(bold_font().Get()), StoredObjects::standard)
                           .object()
                           .Get());
}

/// An object of a class, whose saving ends as the test wants it.
class Stubborn final : public OwnObject<IPersistStream> {
public:
    Stubborn(const CLSID& id, HRESULT answer)
        : OwnObject({IID_IPersist, IID_IPersistStream}), id_(id), answer_(answer) {}
    STDMETHODIMP GetClassID(CLSID* id) override {
        *id = id_;
        return S_OK;
    }
    STDMETHODIMP IsDirty() override { return S_FALSE; }
    STDMETHODIMP Load(IStream*) override { return E_NOTIMPL; }
    STDMETHODIMP Save(IStream*, BOOL) override { return answer_; }
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }

private:
    CLSID id_;
    HRESULT answer_;
};

HRESULT write_object(StreamStore& store, const CLSID& class_id, HRESULT answer) {
    const ComPtr<IUnknown> object(new Stubborn(class_id, answer));
    return com::guard([&] { store.write(u"Icons", com::Variant(object.Get()).get()); });
}

TEST(StreamStore, AnObjectThatCannotSaveItselfIsLeftOut) {
    StreamStore store;
    EXPECT_EQ(S_OK, write_object(store, Endless::class_id, E_NOTIMPL));
    EXPECT_EQ("absent", value_in(store, u"Icons"));
    EXPECT_EQ(S_OK, write_object(store, CLSID_NULL, S_OK));
    EXPECT_EQ("absent", value_in(store, u"Icons"));
    // One that can, and only fails this time, is not to be forgotten.
    EXPECT_EQ(STG_E_MEDIUMFULL, write_object(store, Endless::class_id, STG_E_MEDIUMFULL));
}

TEST(StreamStore, WhatCannotBeStoredIsLeftOut) {
    StreamStore store;
    store.write(u"Text", Variant(L"x").get());
    Variant array(SafeArrayCreateVector(VT_I4, 0, 2));
    store.write(u"Array", array.get());
    EXPECT_EQ("absent", value_in(store, u"Array"));
    EXPECT_EQ("\"x\"", value_in(store, u"Text"));
}

} // namespace
} // namespace vellora::test
