// The container's own object around the control, which knows its name, place and form. Many containers have
// none; then the control's own window answers.
#pragma once

#include "com/client_site.h"
#include "com/variant.h"

#include <optional>
#include <string>

namespace vellora::com {

class Extender {
public:
    explicit Extender(const ClientSite& site) : site_(site) {}

    /// Empty when there is none.
    std::u16string name() const;
    /// In twips. `own_pixels` is the width of the control's window, which answers where the container does
    /// not say in which unit it counts.
    float width(LONG own_pixels) const;

    /// The form: the nearest MDI child or else the top-level window the control stands in; null for none.
    HWND form_window() const;
    bool form_is_mdi_child() const;

private:
    ComPtr<IDispatch> object() const;
    std::optional<float> property_number(const wchar_t* name) const;
    HWND parent_window() const;

    const ClientSite& site_;
};

} // namespace vellora::com
