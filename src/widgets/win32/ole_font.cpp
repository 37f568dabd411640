#include "widgets/win32/ole_font.h"

#include "runtime/host_error.h"
#include "widgets/win32/wide_text.h"

#include <atomic>
#include <utility>

namespace vellora::win32 {

using Microsoft::WRL::ComPtr;

namespace {

constexpr float currency_units = 10000; // a CY counts ten-thousandths

/// Receives the font object's notices. The font object holds it, so it counts its own references; and may, while it
/// tells its listeners of a change, call it once more after it was taken out.
class ChangeSink final : public IPropertyNotifySink {
public:
    explicit ChangeSink(std::weak_ptr<const std::function<void()>> changed) : changed_(std::move(changed)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) {
            return E_POINTER;
        }
        const bool known = id == IID_IUnknown || id == IID_IPropertyNotifySink;
        *object = known ? static_cast<IPropertyNotifySink*>(this) : nullptr;
        if (known) {
            AddRef();
        }
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }
    HRESULT STDMETHODCALLTYPE OnChanged(DISPID) noexcept override {
        try {
            if (const auto changed = changed_.lock()) {
                (*changed)();
            }
            return S_OK;
        } catch (...) {
            return E_FAIL;
        }
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }

private:
    ~ChangeSink() = default;

    std::weak_ptr<const std::function<void()>> changed_;
    std::atomic<ULONG> references_{0};
};

struct TextDeleter {
    void operator()(OLECHAR* text) const { SysFreeString(text); }
};

/// Nothing when the font does not say. IFont::IsEqual would not do: it takes every font for one of the
/// platform's own.
std::optional<FontLook> look_of(IFont* font) {
    FontLook look;
    BSTR name = nullptr;
    CY size{};
    const bool known = SUCCEEDED(font->get_Name(&name)) && SUCCEEDED(font->get_Size(&size)) &&
                       SUCCEEDED(font->get_Weight(&look.weight)) &&
                       SUCCEEDED(font->get_Charset(&look.character_set)) &&
                       SUCCEEDED(font->get_Italic(&look.italic)) &&
                       SUCCEEDED(font->get_Underline(&look.underlined)) &&
                       SUCCEEDED(font->get_Strikethrough(&look.struck_through));
    const std::unique_ptr<OLECHAR, TextDeleter> owner(name);
    if (!known || !name) {
        return std::nullopt;
    }
    look.name = name;
    look.size = size.int64;
    return look;
}

[[noreturn]] void raise_no_font() {
    throw HostError(error_number::invalid_property_value);
}

} // namespace

OleFont::OleFont(ComPtr<IFontDisp> font) : dispatch_(std::move(font)) {
    if (!dispatch_ || FAILED(dispatch_.As(&font_))) {
        raise_no_font();
    }
}

bool OleFont::looks_like(const Font& other) const {
    // Every font of this process came in as one of these.
    const std::optional<FontLook> mine = look_of(font_.Get());
    return mine && mine == look_of(static_cast<const OleFont&>(other).font());
}

std::shared_ptr<OleFont> OleFont::create(std::u16string_view face, float points) {
    std::u16string name(face);
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = wide(name);
    description.cySize.int64 = static_cast<LONGLONG>(points * currency_units);
    description.sWeight = FW_NORMAL;
    description.sCharset = DEFAULT_CHARSET;
    ComPtr<IFontDisp> font;
    if (FAILED(OleCreateFontIndirect(&description, IID_IFontDisp,
                                     reinterpret_cast<void**>(font.GetAddressOf())))) {
        raise_no_font();
    }
    return std::make_shared<OleFont>(std::move(font));
}

FontHandle::FontHandle(IFont* font) : font_(font) {
    if (font_ && SUCCEEDED(font_->get_hFont(&handle_))) {
        font_->AddRefHfont(handle_);
    }
}

FontHandle::~FontHandle() {
    if (handle_ != nullptr) {
        font_->ReleaseHfont(handle_);
    }
}

FontHandle::FontHandle(FontHandle&& other) noexcept
    : font_(std::move(other.font_)), handle_(std::exchange(other.handle_, nullptr)) {}

FontHandle& FontHandle::operator=(FontHandle&& other) noexcept {
    std::swap(font_, other.font_);
    std::swap(handle_, other.handle_);
    return *this;
}

FontWatch::FontWatch(IFont* font, std::function<void()> changed)
    : changed_(std::make_shared<const std::function<void()>>(std::move(changed))) {
    ComPtr<IConnectionPointContainer> container;
    if (FAILED(font->QueryInterface(IID_IConnectionPointContainer,
                                    reinterpret_cast<void**>(container.GetAddressOf()))) ||
        FAILED(container->FindConnectionPoint(IID_IPropertyNotifySink, &point_))) {
        return;
    }
    const ComPtr<IPropertyNotifySink> sink(new ChangeSink(changed_));
    if (FAILED(point_->Advise(sink.Get(), &cookie_))) {
        point_.Reset();
    }
}

FontWatch::~FontWatch() {
    if (point_) {
        point_->Unadvise(cookie_);
    }
}

FontWatch::FontWatch(FontWatch&& other) noexcept
    : changed_(std::move(other.changed_)), point_(std::move(other.point_)), cookie_(other.cookie_) {}

FontWatch& FontWatch::operator=(FontWatch&& other) noexcept {
    std::swap(changed_, other.changed_);
    std::swap(point_, other.point_);
    std::swap(cookie_, other.cookie_);
    return *this;
}

FontInUse::FontInUse(Apply apply) : apply_(std::move(apply)) {}

HFONT FontInUse::handle() const {
    return handle_.get() != nullptr ? handle_.get() : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

void FontInUse::set(const FontRef& font) {
    const auto ole_font = std::dynamic_pointer_cast<OleFont>(font);
    if (font && !ole_font) {
        raise_no_font();
    }
    font_ = font;
    watch_ = ole_font ? FontWatch(ole_font->font(), [this] { renew(true); }) : FontWatch();
    renew(false);
}

void FontInUse::renew(bool told) {
    const auto* ole_font = static_cast<const OleFont*>(font_.get());
    IFont* const font = ole_font != nullptr ? ole_font->font() : nullptr;
    FontHandle fresh(font);
    std::optional<FontLook> look = font != nullptr ? look_of(font) : std::nullopt;
    std::swap(handle_, fresh);
    std::swap(look_, look);
    // A font object also tells of a value that it had already.
    const bool changed = told && look != look_;
    apply_(handle(), changed);
}

} // namespace vellora::win32
