// The real library and its saved settings: golden files through every door, and what careless or hostile
// containers hand it.
#include "com/support/open_list_test.h"
#include "support/container/library.h"
#include "support/container/text.h"

#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <objsafe.h>
#include <shlwapi.h>

namespace vellora::test {
namespace {

using Bytes = std::vector<BYTE>;

Bytes golden(const std::string& name) {
    std::ifstream file(VELLORA_TESTS_DIR "/golden/" + name + ".bin", std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

ComPtr<IStream> stream_of(const Bytes& bytes) {
    ComPtr<IStream> stream;
    *stream.ReleaseAndGetAddressOf() = SHCreateMemStream(bytes.data(), static_cast<UINT>(bytes.size()));
    return stream;
}

Bytes content_of(IStream* stream) {
    STATSTG statistics{};
    EXPECT_EQ(S_OK, stream->Seek({}, STREAM_SEEK_SET, nullptr));
    EXPECT_EQ(S_OK, stream->Stat(&statistics, STATFLAG_NONAME));
    Bytes bytes(static_cast<std::size_t>(statistics.cbSize.QuadPart));
    EXPECT_EQ(S_OK, stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
    return bytes;
}

ComPtr<IStorage> memory_storage() {
    ComPtr<ILockBytes> bytes;
    ComPtr<IStorage> storage;
    EXPECT_EQ(S_OK, CreateILockBytesOnHGlobal(nullptr, TRUE, &bytes));
    EXPECT_EQ(S_OK, StgCreateDocfileOnILockBytes(bytes.Get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0,
                                                 &storage));
    return storage;
}

/// Answers every question for one key with one variant as it is, references and all.
class OddBag final : public OwnObject<IPropertyBag> {
public:
    OddBag() : OwnObject({IID_IPropertyBag}) {}
    std::wstring key;
    VARIANT answer{};
    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
        if (key != name)
            return E_INVALIDARG;
        if ((V_VT(&answer) & VT_BYREF) == 0)
            return VariantCopy(value, &answer);
        *value = answer;
        return S_OK;
    }
    STDMETHODIMP Write(LPCOLESTR, VARIANT*) override { return E_ACCESSDENIED; }
};

class Persistence : public HostTest {
protected:
    /// A control with a site and no settings yet.
    Site& fresh() {
        Site& site = container_.add_site(L"Vellora1", {20, 20, 220, 44});
        site.take(Library::instance().create(__uuidof(Vellora)));
        EXPECT_EQ(S_OK, site.give_site());
        return site;
    }
    static HRESULT load(Site& site, const Bytes& bytes) {
        return site.as<IPersistStreamInit>()->Load(stream_of(bytes).Get());
    }
    static Bytes saved(Site& site) {
        const ComPtr<IStream> stream = stream_of({});
        EXPECT_EQ(S_OK, site.as<IPersistStreamInit>()->Save(stream.Get(), FALSE));
        return content_of(stream.Get());
    }
    static Lines written(Site& site) {
        const ComPtr<PropertyBag> bag(new PropertyBag);
        EXPECT_EQ(S_OK, site.save(*bag.Get()));
        return bag->written();
    }
    static bool has_key(const Lines& lines, const std::string& key) {
        return std::any_of(lines.begin(), lines.end(),
                           [&](const std::string& line) { return line.find(key + " = ") == 0; });
    }
    static void expect_golden(Site& site) {
        EXPECT_EQ(golden("settings-1"), saved(site));
        const auto control = vellora(site);
        Bstr text;
        float height = 0;
        ComPtr<IFontDisp> font;
        ComPtr<IPictureDisp> picture;
        EXPECT_EQ(S_OK, control->get_Text(text.out()));
        EXPECT_EQ(L"Z\u00FCrich \u20AC", text.text());
        EXPECT_EQ(S_OK, control->get_DropDownHeight(&height));
        EXPECT_EQ(2.5F, height);
        EXPECT_EQ(S_OK, control->get_Font(&font));
        ComPtr<IFont> look;
        CY size{};
        ASSERT_EQ(S_OK, font.As(&look));
        EXPECT_EQ(S_OK, look->get_Size(&size));
        EXPECT_NEAR(100000, static_cast<double>(size.int64), 4000); // whole pixels
        EXPECT_EQ(S_OK, control->get_Picture(&picture));
        EXPECT_NE(nullptr, picture.Get());
    }
    static void expect_to_work(Site& site) {
        LONG rows = 0;
        const auto control = vellora(site);
        EXPECT_EQ(S_OK, control->Clear());
        EXPECT_EQ(S_OK, control->AddItem(Variant(L"a").get(), -1));
        EXPECT_EQ(S_OK, control->get_ListCount(&rows));
        EXPECT_EQ(1, rows);
    }
};

TEST_F(Persistence, AGoldenStreamGivesItsControlAndComesBackByteForByte) {
    Site& site = fresh();
    ASSERT_EQ(S_OK, load(site, golden("settings-1")));
    expect_golden(site);
    EXPECT_TRUE(same_lines({"BackColor = I4 12648447", "BackColor = I4 12648447"}, [&] {
        Lines lines = written(site);
        std::erase_if(lines, [](const std::string& line) { return line.find("BackColor") != 0; });
        return lines;
    }()));
}

TEST_F(Persistence, AStorageHoldsTheSameBytes) {
    const ComPtr<IStorage> storage = memory_storage();
    ComPtr<IStream> contents;
    const Bytes bytes = golden("settings-1");
    constexpr DWORD exclusive = STGM_SHARE_EXCLUSIVE | STGM_READWRITE;
    ASSERT_EQ(S_OK, storage->CreateStream(L"Contents", STGM_CREATE | exclusive, 0, 0, &contents));
    ASSERT_EQ(S_OK, contents->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
    contents.Reset();
    Site& site = fresh();
    ASSERT_EQ(S_OK, site.as<IPersistStorage>()->Load(storage.Get()));
    expect_golden(site);
    const ComPtr<IStorage> again = memory_storage();
    ASSERT_EQ(S_OK, site.as<IPersistStorage>()->Save(again.Get(), FALSE));
    ASSERT_EQ(S_OK, again->OpenStream(L"Contents", nullptr, exclusive, 0, &contents));
    EXPECT_EQ(bytes, content_of(contents.Get()));
    EXPECT_TRUE(FAILED(site.as<IPersistStorage>()->Load(memory_storage().Get())));
}

TEST_F(Persistence, MemoryHoldsTheSameBytes) {
    Bytes bytes = golden("settings-1");
    Site& site = fresh();
    const auto door = site.as<IPersistMemory>();
    ASSERT_EQ(S_OK, door->Load(bytes.data(), static_cast<ULONG>(bytes.size())));
    expect_golden(site);
    ULONG size = 0;
    ULARGE_INTEGER stream_size{};
    EXPECT_EQ(S_OK, door->GetSizeMax(&size));
    EXPECT_EQ(S_OK, site.as<IPersistStreamInit>()->GetSizeMax(&stream_size));
    EXPECT_EQ(bytes.size(), size);
    EXPECT_EQ(bytes.size(), stream_size.QuadPart);
    Bytes memory(size);
    EXPECT_EQ(S_OK, door->Save(memory.data(), TRUE, size));
    EXPECT_EQ(bytes, memory);
}

TEST_F(Persistence, ALaterLibrarysStreamLoads) {
    Site& site = fresh();
    ASSERT_EQ(S_OK, load(site, golden("settings-1-future")));
    Bstr text;
    SHORT columns = 0;
    VARIANT_BOOL lines = VARIANT_FALSE;
    EXPECT_EQ(S_OK, vellora(site)->get_Text(text.out()));
    EXPECT_EQ(L"later", text.text());
    EXPECT_EQ(S_OK, vellora(site)->get_Columns(&columns));
    EXPECT_EQ(1, columns);
    EXPECT_EQ(S_OK, vellora(site)->get_GridLines(&lines));
    EXPECT_EQ(VARIANT_TRUE, lines);
    Bytes newest = golden("settings-1");
    newest[4] = 2;
    EXPECT_EQ(STG_E_OLDDLL, load(site, newest));
    expect_to_work(site);
}

TEST_F(Persistence, TheContainersOwnFontIsNotSaved) {
    Site& site = place();
    EXPECT_FALSE(has_key(written(site), "Font"));
    ComPtr<IFontDisp> font;
    ComPtr<IFont> look;
    ASSERT_EQ(S_OK, vellora(site)->get_Font(&font));
    ASSERT_EQ(S_OK, font.As(&look));
    BOOL bold = FALSE;
    ASSERT_EQ(S_OK, look->get_Bold(&bold));
    ASSERT_EQ(S_OK, look->put_Bold(!bold));
    EXPECT_TRUE(has_key(written(site), "Font"));
    ASSERT_EQ(S_OK, look->put_Bold(bold));
    EXPECT_FALSE(has_key(written(site), "Font"));
    ComPtr<IFont> other;
    ComPtr<IFontDisp> copy;
    ASSERT_EQ(S_OK, look->Clone(&other));
    ASSERT_EQ(S_OK, other.As(&copy));
    ASSERT_EQ(S_OK, vellora(site)->putref_Font(copy.Get()));
    EXPECT_FALSE(has_key(written(site), "Font"));
}

TEST_F(Persistence, AFormThatChangesItsFontSeesTheControlFollowIt) {
    Site& site = place();
    const ComPtr<PropertyBag> bag(new PropertyBag);
    ASSERT_EQ(S_OK, site.save(*bag.Get()));
    Site& other = container_.add_site(L"Vellora2", {20, 60, 220, 84});
    other.take(Library::instance().create(__uuidof(Vellora)));
    other.ambients().give(DISPID_AMBIENT_FONT, Variant(make_font(L"Tahoma", 20).Get()));
    ASSERT_EQ(S_OK, other.give_site());
    ASSERT_EQ(S_OK, other.load(*bag.Get()));
    ComPtr<IFontDisp> font;
    ComPtr<IFont> look;
    CY size{};
    ASSERT_EQ(S_OK, vellora(other)->get_Font(&font));
    ASSERT_EQ(S_OK, font.As(&look));
    EXPECT_EQ(S_OK, look->get_Size(&size));
    EXPECT_NEAR(200000, static_cast<double>(size.int64), 4000); // whole pixels
}

TEST_F(Persistence, SavesBeforeAnythingElseAndLoadsAsOftenAsAsked) {
    Site& site = fresh();
    const Bytes empty = saved(site);
    ASSERT_EQ(S_OK, load(site, golden("settings-1")));
    EXPECT_EQ(E_UNEXPECTED, site.as<IPersistStreamInit>()->InitNew());
    ASSERT_EQ(S_OK, load(site, empty));
    EXPECT_EQ(empty, saved(site));
    ASSERT_EQ(S_OK, load(site, golden("settings-1")));
    expect_golden(site);
    EXPECT_EQ(S_FALSE, site.as<IPersistStreamInit>()->IsDirty());
}

TEST_F(Persistence, ADamagedStreamGivesAnErrorOrWhatItSays) {
    Site& site = fresh();
    const Bytes whole = golden("settings-1");
    ASSERT_EQ(S_OK, load(site, whole));
    for (std::size_t size = 0; size < whole.size(); size += 7)
        EXPECT_EQ(STG_E_DOCFILECORRUPT, load(site, {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)}));
    expect_golden(site);
    // Every byte and bit is the native tests' business, which take no windows.
    for (std::size_t byte = 0; byte < whole.size(); byte += 5) {
        Bytes flipped = whole;
        flipped[byte] = static_cast<BYTE>(flipped[byte] ^ (1U << (byte % 8)));
        load(site, flipped);
        LONG rows = -1;
        ASSERT_EQ(S_OK, vellora(site)->get_ListCount(&rows)) << byte;
    }
    ASSERT_EQ(S_OK, load(site, whole));
    expect_golden(site);
}

TEST_F(Persistence, AFailedReadKeepsWhatWasReadBeforeIt) {
    Site& site = fresh();
    const ComPtr<PropertyBag> bag(new PropertyBag);
    bag->put(L"DropDownHeight", Variant(3.0F));
    bag->put(L"Columns", Variant(std::int16_t{51}));
    bag->put(L"MaxLength", Variant(9L));
    const auto door = site.as<IPersistPropertyBag>();
    const HRESULT result = door->Load(bag.Get(), nullptr);
    EXPECT_EQ(run_time_error(9, "Subscript out of range"),
              failure_of(site.control(), IID_IPersistPropertyBag, result).describe());
    float height = 0;
    LONG length = -1;
    EXPECT_EQ(S_OK, vellora(site)->get_DropDownHeight(&height));
    EXPECT_EQ(3.0F, height);
    EXPECT_EQ(S_OK, vellora(site)->get_MaxLength(&length));
    EXPECT_EQ(0, length);
    bag->remove(L"Columns");
    EXPECT_EQ(S_OK, door->Load(bag.Get(), nullptr));
    expect_to_work(site);
}

TEST_F(Persistence, OnlyStandardObjectsComeFromUntrustedSettings) {
    Site& site = fresh();
    ComPtr<IObjectSafety> safety;
    ASSERT_EQ(S_OK, site.control()->QueryInterface(IID_IObjectSafety, &safety));
    ASSERT_EQ(S_OK, safety->SetInterfaceSafetyOptions(IID_IPersistStreamInit, INTERFACESAFE_FOR_UNTRUSTED_DATA,
                                                      INTERFACESAFE_FOR_UNTRUSTED_DATA));
    EXPECT_EQ(S_OK, load(site, golden("settings-1")));
    Bytes foreign = golden("settings-1");
    constexpr BYTE font_class[] = {0x03, 0x52, 0xE3, 0x0B};
    *std::search(foreign.begin(), foreign.end(), std::begin(font_class), std::end(font_class)) = 0x77;
    EXPECT_EQ(E_ACCESSDENIED, load(site, foreign));
}

TEST_F(Persistence, ABagMayAnswerAnything) {
    Site& site = fresh();
    const Variant null = Variant::null();
    const Variant large(SafeArrayCreateVector(VT_UI1, 0, 4 * 1024 * 1024));
    const Variant font(make_font(L"Tahoma", 8).Get());
    Variant inner(L"inner");
    BSTR no_text = nullptr;
    IDispatch* no_object = nullptr;
    std::vector<VARIANT> answers{null.get(),
                                 Variant::missing().get(),
                                 Variant(1e308).get(),
                                 Variant(-2147483647L).get(),
                                 Variant(static_cast<IUnknown*>(nullptr)).get(),
                                 font.get(),
                                 Variant(site.control()).get(),
                                 large.get(),
                                 inner.get()};
    const auto by_reference = [&](VARTYPE type, void* to) {
        VARIANT value{};
        V_VT(&value) = static_cast<VARTYPE>(type | VT_BYREF);
        V_BYREF(&value) = to;
        answers.push_back(value);
    };
    by_reference(VT_VARIANT, &inner.raw());
    by_reference(VT_VARIANT, nullptr);
    by_reference(VT_BSTR, &no_text);
    by_reference(VT_BSTR, nullptr);
    by_reference(VT_DISPATCH, &no_object);
    by_reference(VT_I4, nullptr);
    const ComPtr<OddBag> bag(new OddBag);
    const auto door = site.as<IPersistPropertyBag>();
    for (const wchar_t* key : {L"Text", L"Columns", L"ColumnHeader1", L"ColumnWidth1", L"HeaderIcon1", L"ColumnHidden1",
                               L"BackColor", L"DropDownHeight", L"ListIndex", L"Sorted", L"SortColumn", L"Picture",
                               L"Font", L"Alignment", L"MaxLength", L"LeftMargin", L"HeaderIcons"}) {
        bag->key = key;
        for (const VARIANT& answer : answers) {
            bag->answer = answer;
            door->Load(bag.Get(), nullptr);
            LONG rows = -1;
            EXPECT_EQ(S_OK, vellora(site)->get_ListCount(&rows));
            EXPECT_EQ(0, rows);
        }
    }
    EXPECT_EQ(S_OK, site.load(*ComPtr<PropertyBag>(new PropertyBag).Get()));
    EXPECT_EQ(S_OK, vellora(site)->put_Text(Bstr(L"a").get()));
    EXPECT_EQ(E_ACCESSDENIED, door->Save(bag.Get(), TRUE, TRUE));
    expect_to_work(site);
}

class PersistenceWithAnOpenList : public OpenListTest {};

TEST_F(PersistenceWithAnOpenList, SavesTheSameAsWithAClosedOne) {
    fill(3, 2);
    const auto save = [&] {
        const ComPtr<PropertyBag> bag(new PropertyBag);
        EXPECT_EQ(S_OK, site().save(*bag.Get()));
        return bag->written();
    };
    const Lines closed = save();
    std::vector<Lines> during;
    site().events().on_every([&](const std::string&, EventArguments&) { during.push_back(save()); });
    open();
    EXPECT_TRUE(same_lines(closed, save()));
    c().HideList();
    site().events().forget_handlers();
    ASSERT_EQ(2U, during.size());
    EXPECT_TRUE(same_lines(closed, during[0]));
    EXPECT_TRUE(same_lines(closed, during[1]));
}

} // namespace
} // namespace vellora::test
