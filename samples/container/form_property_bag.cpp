#include "form_property_bag.h"

#include "form_name.h"
#include "form_objects.h"
#include "form_value.h"
#include "hosting/variant.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <wrl/client.h>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

std::u16string_view text_of(LPCOLESTR name) {
    return reinterpret_cast<const char16_t*>(name);
}

/// What a caller who knows nothing of exceptions is told.
template <typename Step>
HRESULT result_of(const Step& step) noexcept {
    try {
        step();
        return S_OK;
    } catch (const FormValueError& error) {
        return error.result;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}

bool is_object(VARTYPE type) {
    return type == VT_UNKNOWN || type == VT_DISPATCH;
}

bool is_stored_object(const FormValue& value) {
    return std::holds_alternative<FormBlob>(value) || std::holds_alternative<std::shared_ptr<FormObject>>(value);
}

/// As IDispatch unless the caller asks for another type, or the object has none.
VARIANT variant_of(ComPtr<IUnknown> object, VARTYPE type) {
    ComPtr<IDispatch> dispatch;
    if (type != VT_UNKNOWN)
        object.As(&dispatch);
    if (type == VT_DISPATCH && !dispatch)
        throw FormValueError{DISP_E_TYPEMISMATCH};
    VARIANT value{};
    value.vt = dispatch ? static_cast<VARTYPE>(VT_DISPATCH) : static_cast<VARTYPE>(VT_UNKNOWN);
    value.punkVal = dispatch ? dispatch.Detach() : object.Detach();
    return value;
}

/// A bag for the settings of one object, which is closed when the object is through with them.
class ObjectBag {
public:
    explicit ObjectBag(FormPropertyBag* bag) : bag_(bag) {}
    ObjectBag(const ObjectBag&) = delete;
    ObjectBag& operator=(const ObjectBag&) = delete;
    ~ObjectBag() { bag_->close(); }

    IPropertyBag* get() const noexcept { return bag_.Get(); }

private:
    ComPtr<FormPropertyBag> bag_;
};

} // namespace

std::vector<FormSetting> FormPropertyBag::unread() const {
    std::vector<FormSetting> left;
    if (settings_)
        std::ranges::copy_if(settings_->settings, std::back_inserter(left),
                             [this](const FormSetting& setting) { return !read_.contains(folded(setting.name)); });
    return left;
}

STDMETHODIMP FormPropertyBag::Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) noexcept {
    if (!name || !value)
        return E_POINTER;
    return result_of([&] { read(text_of(name), value, log); });
}

STDMETHODIMP FormPropertyBag::Write(LPCOLESTR name, VARIANT* value) noexcept {
    if (!name || !value)
        return E_POINTER;
    return result_of([&] { write(text_of(name), *value); });
}

FormObject& FormPropertyBag::settings() const {
    if (!settings_)
        throw FormValueError{E_UNEXPECTED};
    return *settings_;
}

void FormPropertyBag::read(std::u16string_view name, VARIANT* value, IErrorLog* log) {
    const FormSetting* const setting = find_setting(settings(), name);
    // The control takes its default.
    if (!setting)
        throw FormValueError{E_INVALIDARG};
    // The control may write while an object of its own is loaded.
    const FormValue found = setting->value;
    if (!is_stored_object(found))
        *value = plain_variant(found, value->vt);
    else if (value->vt == VT_EMPTY || is_object(value->vt))
        *value = variant_of(loaded(found, log), value->vt);
    else
        throw FormValueError{DISP_E_TYPEMISMATCH};
    read_.insert(folded(name));
}

void FormPropertyBag::write(std::u16string_view name, const VARIANT& value) {
    // References may hold Nothing, too.
    Variant held;
    check_value(VariantCopyInd(held.out(), const_cast<VARIANT*>(&value)));
    IUnknown* const object = is_object(held.type()) ? held.get()->punkVal : nullptr;
    if (is_object(held.type()) && !object) {
        std::erase_if(settings().settings,
                      [name](const FormSetting& setting) { return same_name(setting.name, name); });
        return;
    }
    FormSetting setting = object ? FormSetting{std::u16string(name), saved(object)} : plain_setting(name, *held.get());
    if (FormSetting* const known = find_setting(settings(), name))
        *known = std::move(setting);
    else
        settings().settings.push_back(std::move(setting));
}

ComPtr<IUnknown> FormPropertyBag::loaded(const FormValue& value, IErrorLog* log) const {
    if (const auto record = std::get_if<FormBlob>(&value))
        return loaded_record(*record);
    FormObject& object = *std::get<std::shared_ptr<FormObject>>(value);
    const ObjectBag bag(new FormPropertyBag(object, depth_ + 1));
    return loaded_object(object, bag.get(), log);
}

FormValue FormPropertyBag::saved(IUnknown* object) const {
    if (auto font = saved_font(object))
        return font;
    ComPtr<IPersistPropertyBag> persist;
    if (SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(&persist))))
        if (auto by_name = saved_by_name(persist.Get()))
            return by_name;
    return saved_record(object);
}

/// Null when the object cannot do it after all.
std::shared_ptr<FormObject> FormPropertyBag::saved_by_name(IPersistPropertyBag* object) const {
    // An object that holds itself would go on for ever.
    if (depth_ >= FormLimits::depth)
        throw FormValueError{E_FAIL};
    auto saved = std::make_shared<FormObject>(object_of(object));
    const ObjectBag bag(new FormPropertyBag(*saved, depth_ + 1));
    const HRESULT result = object->Save(bag.get(), FALSE, TRUE);
    // The bag's own word for what a form cannot hold by name.
    if (result == E_NOTIMPL || result == DISP_E_TYPEMISMATCH)
        return nullptr;
    check_value(result);
    return saved;
}

} // namespace vellora::samples
