// IDispatch of a dual interface, driven by its type information.
#pragma once

#include "com/delegating.h"
#include "com/guard.h"
#include "com/type_library.h"

#include <memory>
#include <utility>

namespace vellora::com {

struct InvokeCall {
    DISPID member = DISPID_UNKNOWN;
    WORD flags = 0;
    DISPPARAMS* arguments = nullptr;
    VARIANT* result = nullptr;
    EXCEPINFO* exception = nullptr;
    UINT* bad_argument = nullptr;
};

/// Calls the member on `instance`, which implements the interface described. What scripts pass is put right
/// before, colours become signed after, and an object property takes an assignment with or without Set.
HRESULT invoke(const InterfaceInfo& interface_info, void* instance, const InvokeCall& call);

/// Base of the object that implements the dual interface `Interface`.
template <class Interface>
class Dispatch : public Delegating<Interface> {
public:
    STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override {
        return guard([&] {
            need(count);
            *count = 1;
        });
    }

    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** type) noexcept override {
        return guard([&] {
            need(type);
            *type = nullptr;
            if (index != 0)
                throw ComFailure(DISP_E_BADINDEX);
            check(info().type.CopyTo(type));
        });
    }

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept override {
        return guard([&] { return DispGetIDsOfNames(info().type.Get(), names, count, ids); });
    }

    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO* exception, UINT* bad_argument) noexcept override {
        // The caller may let go of the object inside the call.
        const ComPtr<IUnknown> hold(this->controlling());
        return guard([&] {
            Interface* const instance = this;
            return invoke(info(), instance, {member, flags, arguments, result, exception, bad_argument});
        });
    }

protected:
    Dispatch(IUnknown* controlling, std::shared_ptr<const TypeLibrary> types)
        : Delegating<Interface>(controlling), types_(std::move(types)) {}
    ~Dispatch() = default;

private:
    const InterfaceInfo& info() const noexcept { return types_->default_interface(); }

    std::shared_ptr<const TypeLibrary> types_;
};

} // namespace vellora::com
