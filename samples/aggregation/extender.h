// The object that a form puts around a control, as hosts of the VB family do: to everybody else the two are one. The
// extender adds the properties Name and Tag; all the rest is the control's, which was created as a part of it.
#pragma once

#include "hosting/control_factory.h"

#include <string>

#include <oaidl.h>
#include <wrl/client.h>

namespace vellora::samples {

class Extender final : public IDispatch {
public:
    /// A new control inside a new extender. Throws a Failure when there is none to be had.
    static Microsoft::WRL::ComPtr<IDispatch> create(const ControlFactory& factory, std::wstring name);
    Extender(const Extender&) = delete;
    Extender& operator=(const Extender&) = delete;

    // The identity of both: what the extender does not answer itself, the control does.
    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override;

    // The members of both.
    STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID locale, WORD kind, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO* error, UINT* wrong_argument) override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return control_->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** type) override {
        return control_->GetTypeInfo(index, locale, type);
    }

private:
    explicit Extender(std::wstring name) : name_(std::move(name)) {}
    ~Extender() = default;

    void take_in(Microsoft::WRL::ComPtr<IUnknown> control);
    HRESULT name_or_tag(DISPID id, WORD kind, const DISPPARAMS& arguments, VARIANT* result);

    std::wstring name_;
    std::wstring tag_;
    Microsoft::WRL::ComPtr<IUnknown> inner_;
    IDispatch* control_ = nullptr; // counts as a reference to the extender itself, so none is held
    ULONG references_ = 0;
};

} // namespace vellora::samples
