// The control's own stream format, also in the hands of somebody who means harm.
#include "com/bstr.h"
#include "com/guard.h"
#include "com/stream_store.h"
#include "runtime/host_error.h"
#include "support/container/ambients.h"
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

ComPtr<IStream> stream_of(const Content& content) {
    return com::adopt(SHCreateMemStream(content.data(), static_cast<UINT>(content.size())));
}

Content content_of(const StreamStore& store) {
    const ComPtr<IStream> stream = com::adopt(SHCreateMemStream(nullptr, 0));
    store.save(stream.Get());
    Content content(store.size());
    ULONG read = 0;
    EXPECT_EQ(S_OK, stream->Seek({}, STREAM_SEEK_SET, nullptr));
    EXPECT_EQ(S_OK, stream->Read(content.data(), static_cast<ULONG>(content.size()), &read));
    EXPECT_EQ(content.size(), read);
    return content;
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
    EXPECT_GT(failures, 12 * 8); // magic and version at the least
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
    EXPECT_EQ(STG_E_OLDFORMAT, outcome(content));
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
