// Saving and loading at times and in an order that a host should not, and some do.
#include "com/support/open_list_test.h"
#include "support/container/library.h"
#include "support/container/own_object.h"
#include "support/container/text.h"

#include <commctrl.h>
#include <functional>
#include <map>

namespace vellora::test {
namespace {

ComPtr<PropertyBag> bag_of(std::map<std::wstring, Variant> values) {
    ComPtr<PropertyBag> bag(new PropertyBag);
    for (auto& [key, value] : values)
        bag->put(key, value);
    return bag;
}
ComPtr<PropertyBag> first_bag() {
    return bag_of({{L"Text", L"first"},
                   {L"MaxLength", 12L},
                   {L"Columns", std::int16_t{2}},
                   {L"ColumnHeader1", L"Name"},
                   {L"ColumnHeader2", L"Place"}});
}
ComPtr<PropertyBag> second_bag() {
    return bag_of({{L"Text", L"second"}, {L"Columns", std::int16_t{3}}, {L"ColumnHeader3", L"Year"}});
}

/// Gives what another bag holds, and does something of its own when it is asked for one key.
class CallingBag final : public OwnObject<IPropertyBag> {
public:
    CallingBag(ComPtr<PropertyBag> values, std::wstring key, std::function<void()> action)
        : OwnObject({IID_IPropertyBag}), values_(std::move(values)), key_(std::move(key)), action_(std::move(action)) {}
    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) override {
        if (key_ == name)
            action_();
        return values_->Read(name, value, log);
    }
    STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) override { return values_->Write(name, value); }

private:
    ComPtr<PropertyBag> values_;
    std::wstring key_;
    std::function<void()> action_;
};

/// What the control writes, in the order it writes it. Fonts are objects without a text.
Lines saved(Site& site) {
    const ComPtr<PropertyBag> bag(new PropertyBag);
    EXPECT_EQ(S_OK, site.save(*bag.Get()));
    return bag->written();
}

class AnyTime : public HostTest {
protected:
    Site& bare() {
        Site& site = container_.add_site(L"Vellora1", {20, 20, 220, 44});
        site.take(Library::instance().create(__uuidof(Vellora)));
        return site;
    }
    /// What a control that was loaded in the proper order saves.
    Lines properly(PropertyBag& bag) { return saved(container_.load(__uuidof(Vellora), bag)); }
};

TEST_F(AnyTime, LoadedBeforeItHasASite) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.load(*first_bag().Get()));
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.activate());
    EXPECT_TRUE(same_lines(properly(*first_bag().Get()), saved(site)));
}

TEST_F(AnyTime, LoadedTwice) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.load(*first_bag().Get()));
    ASSERT_EQ(S_OK, site.load(*second_bag().Get()));
    EXPECT_TRUE(same_lines(properly(*second_bag().Get()), saved(site)));
}

TEST_F(AnyTime, LoadedInsideItsLoadingItRefuses) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.give_site());
    const ComPtr<PropertyBag> bag = first_bag();
    // It cannot be set while the program runs, other than by loading.
    bag->put(L"ButtonStyle", long{vlToggle});
    bag->report_to(site.log());
    HRESULT inner = S_OK;
    site.log().inside("IPropertyBag::Read", [&] { inner = site.load(*second_bag().Get()); });
    EXPECT_EQ(S_OK, site.load(*bag.Get()));
    EXPECT_EQ(E_UNEXPECTED, inner);
    EXPECT_TRUE(same_lines(properly(*bag.Get()), saved(site)));
    EXPECT_EQ(S_OK, site.load(*second_bag().Get()));
}

TEST_F(AnyTime, UsedInsideItsLoadingItHasTheColumnsThatAreLoaded) {
    constexpr float loaded_width = 1500;
    Site& site = bare();
    ASSERT_EQ(S_OK, site.give_site());
    const ComPtr<PropertyBag> bag = first_bag();
    bag->put(L"ColumnWidth2", loaded_width);
    float width = 0;
    // Reading a width takes headers, and no width has been loaded yet.
    HRESULT used = E_FAIL;
    const ComPtr<IPropertyBag> using_bag(
        new CallingBag(bag, L"ColumnHeader1", [&] { used = vellora(site)->get_ColumnWidth(1, &width); }));
    ASSERT_EQ(S_OK, site.as<IPersistPropertyBag>()->Load(using_bag.Get(), nullptr));
    EXPECT_EQ(S_OK, used);
    EXPECT_EQ(S_OK, vellora(site)->get_ColumnWidth(2, &width));
    EXPECT_EQ(loaded_width, width);
}

TEST_F(AnyTime, LoadedAfterItWasNew) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.init_new());
    ASSERT_EQ(S_OK, site.load(*first_bag().Get()));
    EXPECT_TRUE(same_lines(properly(*first_bag().Get()), saved(site)));
}

TEST_F(AnyTime, LoadedWhileItsDefaultsWaitForASite) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.init_new());
    ASSERT_EQ(S_OK, site.load(*first_bag().Get()));
    ASSERT_EQ(S_OK, site.give_site());
    EXPECT_TRUE(same_lines(properly(*first_bag().Get()), saved(site)));
}

TEST_F(AnyTime, NewAfterItWasLoadedIsRefused) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.load(*first_bag().Get()));
    const Lines before = saved(site);
    EXPECT_EQ(E_UNEXPECTED, site.init_new());
    EXPECT_EQ(E_UNEXPECTED, site.as<IPersistPropertyBag>()->InitNew());
    EXPECT_TRUE(same_lines(before, saved(site)));
}

TEST_F(AnyTime, SavedBeforeAnythingIsANewControl) {
    Site& early = bare();
    const Lines without_site = saved(early);
    Site& usual = bare();
    ASSERT_EQ(S_OK, usual.init_new());
    EXPECT_TRUE(same_lines(saved(usual), without_site));
}

TEST_F(AnyTime, SavedAfterItWasClosed) {
    Site& site = container_.load(__uuidof(Vellora), *first_bag().Get());
    const Lines before = saved(site);
    ASSERT_EQ(S_OK, site.close());
    EXPECT_TRUE(same_lines(before, saved(site)));
    ASSERT_EQ(S_OK, site.load(*second_bag().Get()));
    EXPECT_TRUE(same_lines(properly(*second_bag().Get()), saved(site)));
    ASSERT_EQ(S_OK, site.take_site_away());
    EXPECT_TRUE(same_lines(properly(*second_bag().Get()), saved(site)));
}

TEST_F(AnyTime, ACompletionWithoutASaveSavesNothing) {
    Site& site = container_.load(__uuidof(Vellora), *first_bag().Get());
    const auto storage = site.as<IPersistStorage>();
    EXPECT_EQ(S_OK, storage->HandsOffStorage());
    EXPECT_EQ(S_OK, storage->SaveCompleted(nullptr));
    EXPECT_EQ(S_FALSE, storage->IsDirty());
    ASSERT_EQ(S_OK, vellora(site)->put_Text(Bstr(L"changed").get()));
    ASSERT_EQ(S_OK, storage->IsDirty());
    storage->HandsOffStorage();
    storage->SaveCompleted(nullptr);
    EXPECT_EQ(S_OK, storage->IsDirty());
}

ComPtr<IStorage> make_storage() {
    ComPtr<ILockBytes> bytes;
    ComPtr<IStorage> storage;
    CreateILockBytesOnHGlobal(nullptr, TRUE, &bytes);
    StgCreateDocfileOnILockBytes(bytes.Get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, &storage);
    return storage;
}

TEST_F(AnyTime, AChangeBetweenSaveAndCompletionIsNotSaved) {
    Site& site = place();
    const auto door = site.as<IPersistStorage>();
    const ComPtr<IStorage> storage = make_storage();
    ASSERT_EQ(S_OK, vellora(site)->put_Text(Bstr(L"saved").get()));
    ASSERT_EQ(S_OK, door->Save(storage.Get(), TRUE));
    ASSERT_EQ(S_OK, vellora(site)->put_Text(Bstr(L"not saved").get()));
    ASSERT_EQ(S_OK, door->SaveCompleted(nullptr));
    EXPECT_EQ(S_OK, door->IsDirty());
    ASSERT_EQ(S_OK, door->Save(storage.Get(), TRUE));
    ASSERT_EQ(S_OK, door->SaveCompleted(nullptr));
    EXPECT_EQ(S_FALSE, door->IsDirty());
}

TEST_F(AnyTime, ASaveThatFailsLeavesTheStorageAsItWas) {
    Site& site = place();
    const auto door = site.as<IPersistStorage>();
    const ComPtr<IStorage> storage = make_storage();
    ASSERT_EQ(S_OK, door->Save(storage.Get(), TRUE));
    ASSERT_EQ(S_OK, door->SaveCompleted(nullptr));
    const ComPtr<PropertyBag> too_many = bag_of({{L"Columns", std::int16_t{51}}});
    ASSERT_TRUE(FAILED(site.load(*too_many.Get())));
    ASSERT_TRUE(FAILED(door->Save(storage.Get(), TRUE)));
    EXPECT_EQ(S_OK, door->Load(storage.Get()));
}

TEST_F(AnyTime, AChangeInsideASaveIsNotSaved) {
    Site& site = place();
    const auto door = site.as<IPersistPropertyBag>();
    const ComPtr<PropertyBag> bag(new PropertyBag);
    bag->report_to(site.log());
    ASSERT_EQ(S_OK, vellora(site)->put_Text(Bstr(L"first").get()));
    // The text is the first to be written.
    site.log().inside("IPropertyBag::Write", [&] { vellora(site)->put_Text(Bstr(L"second").get()); });
    ASSERT_EQ(S_OK, door->Save(bag.Get(), TRUE, TRUE));
    EXPECT_EQ(L"first", bag->get(L"Text").text());
    EXPECT_EQ(S_OK, site.as<IPersistStreamInit>()->IsDirty());
    ASSERT_EQ(S_OK, door->Save(bag.Get(), TRUE, TRUE));
    EXPECT_EQ(S_FALSE, site.as<IPersistStreamInit>()->IsDirty());
}

TEST_F(AnyTime, AStreamThatTakesNothingLeavesTheControlUnsaved) {
    Site& site = place();
    const ComPtr<IStorage> storage = make_storage();
    ComPtr<IStream> stream;
    ASSERT_EQ(S_OK, storage->CreateStream(L"Settings", STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0, 0, &stream));
    stream.Reset();
    ASSERT_EQ(S_OK, storage->OpenStream(L"Settings", nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, &stream));
    ASSERT_EQ(S_OK, vellora(site)->put_Text(Bstr(L"changed").get()));
    const auto door = site.as<IPersistStreamInit>();
    EXPECT_TRUE(FAILED(door->Save(stream.Get(), TRUE)));
    EXPECT_EQ(S_OK, door->IsDirty());
}

class WhileOpen : public OpenListTest {};

TEST_F(WhileOpen, SavesWhatItSavesClosed) {
    fill(3, 2);
    ASSERT_EQ(S_OK, c().put_AllowResize(VARIANT_TRUE));
    ASSERT_EQ(S_OK, c().put_ListIndex(1));
    const Lines closed = saved(site());
    open();
    EXPECT_TRUE(same_lines(closed, saved(site())));
    ASSERT_EQ(S_OK, c().HideList());
    EXPECT_TRUE(same_lines(closed, saved(site())));
}

TEST_F(WhileOpen, IsLoaded) {
    fill(3, 2);
    open();
    ASSERT_EQ(S_OK, site().load(*second_bag().Get()));
    container_.pump();
    ASSERT_EQ(S_OK, c().HideList());
    EXPECT_TRUE(floating_windows().empty());
    EXPECT_TRUE(same_lines(saved(container_.load(__uuidof(Vellora), *second_bag().Get())), saved(site())));
}

class InEvent : public OpenListTest, public testing::WithParamInterface<const char*> {
protected:
    void provoke() {
        static const std::map<std::string, void (InEvent::*)()> ways = {
            {"Change", &InEvent::write_text},     {"Click", &InEvent::click_row},
            {"DropDown", &InEvent::drop},         {"ItemCheck", &InEvent::check},
            {"ColumnReorder", &InEvent::reorder}, {"ColumnClick", &InEvent::click_header},
            {"KeyPress", &InEvent::type},         {"KeyDown", &InEvent::type},
            {"MouseDown", &InEvent::press},       {"MouseUp", &InEvent::press}};
        (this->*ways.at(GetParam()))();
        container_.pump();
    }
    void on_event(std::function<void()> handler) {
        site().events().on(GetParam(), [this, handler](EventArguments&) {
            ++times_;
            handler();
        });
    }

    int times_ = 0;

private:
    void write_text() { c().put_Text(Bstr(L"new").get()); }
    void drop() {
        open();
        c().HideList();
    }
    void check() { c().put_Checked(1, VARIANT_TRUE); }
    void click_row() {
        open();
        click(list(), row_rect(list(), 1));
    }
    void click_header() {
        open();
        const HWND header = header_of(list());
        click(header, header_rect(list(), 0));
    }
    void reorder() {
        c().put_AllowColumnReorder(VARIANT_TRUE);
        open();
        const HWND header = header_of(list());
        HDITEMW item{};
        NMHEADERW notice{
            {header, static_cast<UINT_PTR>(GetDlgCtrlID(header)), static_cast<UINT>(HDN_ENDDRAG)}, 0, 0, &item};
        item.mask = HDI_ORDER;
        item.iOrder = 1;
        SendMessageW(GetParent(header), WM_NOTIFY, notice.hdr.idFrom, reinterpret_cast<LPARAM>(&notice));
    }
    void type() {
        const HWND field = text_field(control());
        SetFocus(field);
        key(field, 'A');
    }
    void press() {
        const HWND field = text_field(control());
        click(field, screen_rect(field));
    }
};

TEST_P(InEvent, SavesWhatTheHandlerReads) {
    fill(3, 2);
    on_event([this] {
        const ComPtr<PropertyBag> bag(new PropertyBag);
        // What the user selects is known to the settings when the program has asked for it.
        const long read_index = list_index();
        ASSERT_EQ(S_OK, site().save(*bag.Get()));
        EXPECT_EQ(text(), bag->get(L"Text").text());
        const Variant index = bag->get(L"ListIndex");
        EXPECT_EQ(read_index, index.type() == VT_EMPTY ? -1 : index.number());
        EXPECT_EQ(2, bag->get(L"Columns").number());
        EXPECT_TRUE(same_lines(bag->written(), saved(site())));
    });
    provoke();
    EXPECT_GT(times_, 0);
}

TEST_P(InEvent, IsLoaded) {
    fill(3, 2);
    on_event([this] {
        if (times_ == 1) {
            EXPECT_EQ(S_OK, site().load(*second_bag().Get()));
        }
    });
    provoke();
    EXPECT_GT(times_, 0);
    site().events().forget_handlers();
    c().HideList();
    EXPECT_TRUE(floating_windows().empty());
    ASSERT_EQ(S_OK, site().load(*second_bag().Get()));
    EXPECT_TRUE(same_lines(saved(container_.load(__uuidof(Vellora), *second_bag().Get())), saved(site())));
    open();
    EXPECT_EQ(1U, floating_windows().size());
    c().HideList();
}

std::string event_name(const testing::TestParamInfo<const char*>& info) {
    return info.param;
}

INSTANTIATE_TEST_SUITE_P(Event, InEvent,
                         testing::Values("Change", "Click", "DropDown", "ItemCheck", "ColumnReorder", "ColumnClick",
                                         "KeyPress", "KeyDown", "MouseDown", "MouseUp"),
                         event_name);

} // namespace
} // namespace vellora::test
