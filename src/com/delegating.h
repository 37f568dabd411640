// An interface that belongs to an aggregatable object: identity and lifetime are the controlling object's.
#pragma once

#include "com/ole.h"

namespace vellora::com {

template <class Interface>
class Delegating : public Interface {
public:
    Delegating(const Delegating&) = delete;
    Delegating& operator=(const Delegating&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** out) noexcept override {
        return controlling_->QueryInterface(id, out);
    }
    STDMETHODIMP_(ULONG) AddRef() noexcept override { return controlling_->AddRef(); }
    STDMETHODIMP_(ULONG) Release() noexcept override { return controlling_->Release(); }

protected:
    /// The controlling object outlives this part of it, so no reference is counted.
    explicit Delegating(IUnknown* controlling) noexcept : controlling_(controlling) {}
    ~Delegating() = default;

    IUnknown* controlling() const noexcept { return controlling_; }

private:
    IUnknown* controlling_;
};

} // namespace vellora::com
