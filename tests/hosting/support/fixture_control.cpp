#include "hosting/support/fixture_control.h"

#include "com/bstr.h"
#include "com/variant_view.h"
#include "runtime/host_error.h"
#include "support/container/text.h"

namespace vellora::test {

FixtureControl* FixtureControl::last = nullptr;

FixtureControl::FixtureControl(com::ControlHost& host)
    : host_(host), members_(host, *this),
      window_(CreateWindowExW(0, L"Static", L"", WS_CHILD, 0, 0, 0, 0, host.parking_window(), nullptr,
                              nullptr, nullptr)) {
    last = this;
}

FixtureControl::~FixtureControl() {
    DestroyWindow(window_);
    last = nullptr;
}

void* FixtureControl::interface_of(REFIID id) {
    return id == __uuidof(IFixture) || id == IID_IDispatch ? static_cast<IFixture*>(&members_) : nullptr;
}

void FixtureControl::on_resized() {
    note("resized " + std::to_string(host_.size().cx) + " " + std::to_string(host_.size().cy));
    if (when_resized)
        when_resized();
}

void FixtureControl::draw(HDC dc, const RECT& bounds) {
    note("draw " + std::to_string(bounds.left) + " " + std::to_string(bounds.top) + " " +
         std::to_string(bounds.right) + " " + std::to_string(bounds.bottom));
    Rectangle(dc, bounds.left, bounds.top, bounds.right, bounds.bottom);
}

void FixtureControl::on_ambient_changed(DISPID id) {
    note("ambient " + std::to_string(id));
}

void FixtureControl::initialise_new() {
    note("new");
    text = host_.display_name();
}

void FixtureControl::load(com::PropertyStore& store) {
    note("load");
    const auto stored = store.read(u"Text", VT_BSTR);
    text = stored ? com::bstr_view(V_BSTR(&com::converted(stored->get(), VT_BSTR).get())) : u"";
    const auto stored_font = store.read(u"Font", VT_UNKNOWN);
    font = stored_font ? stored_font->object_as<IFontDisp>() : nullptr;
}

void FixtureControl::save(com::PropertyStore& store) {
    note("save");
    store.write(u"Text", com::Variant(text).get());
    if (font)
        store.write(u"Font", com::Variant(font.Get()).get());
}

com::KeyRoute FixtureControl::translate_key(const MSG& message) {
    return when_key ? when_key(message) : com::KeyRoute::container;
}

std::optional<com::PropertyCategory> FixtureControl::category(DISPID property) {
    if (property != DISPID_VALUE)
        return std::nullopt;
    return com::PropertyCategory::text;
}

ComPtr<IUnknown> make_fixture(IUnknown* outer) {
    ComPtr<IUnknown> object;
    EXPECT_EQ(S_OK, com::ControlObject::create(
                        fixture_class,
                        [](com::ControlHost& host) -> std::unique_ptr<com::ControlClient> {
                            return std::make_unique<FixtureControl>(host);
                        },
                        outer, IID_PPV_ARGS(&object)));
    return object;
}

STDMETHODIMP FixtureMembers::get_Text(BSTR* result) noexcept {
    return com::guard([&] { *result = com::make_bstr(control_.text); });
}

STDMETHODIMP FixtureMembers::put_Text(BSTR value) noexcept {
    return com::guard([&] { control_.text = com::bstr_view(value); });
}

STDMETHODIMP FixtureMembers::Halve(short* number) noexcept {
    *number = static_cast<short>(*number / 2);
    return S_OK;
}

STDMETHODIMP FixtureMembers::Rename(BSTR* name) noexcept {
    return com::guard([&] {
        const std::u16string longer = std::u16string(com::bstr_view(*name)) + u"!";
        SysFreeString(*name);
        *name = com::make_bstr(longer);
    });
}

STDMETHODIMP FixtureMembers::Describe(VARIANT value, BSTR* result) noexcept {
    return com::guard(__uuidof(IFixture), [&] {
        std::u16string scratch;
        *result = com::make_bstr(com::VariantView(value).text(scratch));
    });
}

STDMETHODIMP FixtureMembers::get_Color(OLE_COLOR* result) noexcept {
    *result = 0x80000005;
    return S_OK;
}

STDMETHODIMP FixtureMembers::get_Mode(fixMode* result) noexcept {
    *result = control_.mode;
    return S_OK;
}

STDMETHODIMP FixtureMembers::put_Mode(fixMode value) noexcept {
    control_.mode = value;
    return S_OK;
}

STDMETHODIMP FixtureMembers::get_Font(IFontDisp** result) noexcept {
    return control_.font.CopyTo(result);
}

STDMETHODIMP FixtureMembers::putref_Font(IFontDisp* value) noexcept {
    control_.font = value;
    return S_OK;
}

STDMETHODIMP FixtureMembers::Fail(long number) noexcept {
    return com::guard(__uuidof(IFixture), [&] { throw HostError(number); });
}

STDMETHODIMP FixtureMembers::Add(short* first, short second, long* result) noexcept {
    *result = *first + second;
    return S_OK;
}

STDMETHODIMP FixtureMembers::Turn(fixMode* mode) noexcept {
    *mode = *mode == fixPlain ? fixFancy : fixPlain;
    return S_OK;
}

} // namespace vellora::test
