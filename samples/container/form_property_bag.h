// The settings of a control on a form as the property bag that the control loads from and saves to.
#pragma once

#include "form_text.h"
#include "hosting/com_object.h"

#include <set>

#include <oaidl.h>
#include <ocidl.h>
#include <wrl/client.h>

namespace vellora::samples {

/// Objects that save themselves by name become objects of the form; all others go into the companion file.
class FormPropertyBag final : public ComObject<IPropertyBag> {
public:
    /// Reads and writes there until it is closed.
    explicit FormPropertyBag(FormObject& settings) : FormPropertyBag(settings, 1) {}

    /// Ends the use of the settings, for a control that keeps the bag longer than it should.
    void close() noexcept { settings_ = nullptr; }
    /// What nobody has read so far. To lose nothing of a form, take it after loading and hand it to add_missing()
    /// when the control has saved itself into new settings.
    std::vector<FormSetting> unread() const;

    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) noexcept override;
    STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) noexcept override;

private:
    FormPropertyBag(FormObject& settings, std::size_t depth) : settings_(&settings), depth_(depth) {}

    FormObject& settings() const;
    void read(std::u16string_view name, VARIANT* value, IErrorLog* log);
    void write(std::u16string_view name, const VARIANT& value);
    Microsoft::WRL::ComPtr<IUnknown> loaded(const FormValue& value, IErrorLog* log) const;
    FormValue saved(IUnknown* object) const;
    std::shared_ptr<FormObject> saved_by_name(IPersistPropertyBag* object) const;

    FormObject* settings_;
    std::size_t depth_;
    std::set<std::u16string> read_;
};

} // namespace vellora::samples
