// A COM object of the program's own: identity, reference count and the interfaces it is asked for.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace vellora::samples {

/// Deletes itself with its last reference; keep it in a ComPtr from the start.
template <class First, class... Others>
class ComObject : public First, public Others... {
public:
    ComObject() = default;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        *object = nullptr;
        if (IsEqualIID(id, __uuidof(IUnknown)))
            *object = static_cast<First*>(this);
        else
            (offer<First>(id, object), ..., offer<Others>(id, object));
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    virtual ~ComObject() = default;

private:
    template <class Interface>
    void offer(REFIID id, void** object) {
        if (IsEqualIID(id, __uuidof(Interface)))
            *object = static_cast<Interface*>(this);
    }

    // Forms live in one thread, so counting needs no lock.
    ULONG references_ = 0;
};

} // namespace vellora::samples
