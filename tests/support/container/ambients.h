// The ambient properties of a site, each of which may be given, changed, or absent.
#pragma once

#include "support/container/site_part.h"
#include "support/container/variant.h"

#include <map>
#include <string>

#include <oaidl.h>
#include <olectl.h>

namespace vellora::test {

class Ambients final : public SitePart<IDispatch> {
public:
    /// Starts with those of an ordinary form in run mode.
    explicit Ambients(SiteState& state);

    void give(DISPID id, Variant value);
    void withhold(DISPID id);
    void withhold_all();
    /// Tells the control that an ambient property changed; DISPID_UNKNOWN for several.
    void announce(DISPID id);

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD kind, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* info, UINT* wrong_argument) override;

private:
    std::map<DISPID, Variant> values_;
};

/// A font object; points as in the host's font dialog.
Microsoft::WRL::ComPtr<IDispatch> make_font(const std::wstring& face, double points);

} // namespace vellora::test
