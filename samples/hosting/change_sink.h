// Hears when a control says that one of its properties changed, whoever changed it.
#pragma once

#include "com_object.h"

#include <functional>

#include <ocidl.h>
#include <wrl/client.h>

namespace vellora::samples {

class ChangeSink final : public ComObject<IPropertyNotifySink> {
public:
    explicit ChangeSink(std::function<void()> changed) : changed_(std::move(changed)) {}

    void listen_to(IUnknown* control) {
        Microsoft::WRL::ComPtr<IConnectionPointContainer> points;
        if (SUCCEEDED(control->QueryInterface(IID_PPV_ARGS(&points))) &&
            SUCCEEDED(points->FindConnectionPoint(__uuidof(IPropertyNotifySink), &point_)))
            point_->Advise(this, &cookie_);
    }
    void stop() {
        if (const auto point = std::move(point_))
            point->Unadvise(cookie_);
    }

    STDMETHODIMP OnChanged(DISPID) override {
        try {
            changed_();
        } catch (...) {
            return E_FAIL; // exceptions must not reach the control
        }
        return S_OK;
    }
    STDMETHODIMP OnRequestEdit(DISPID) override { return S_OK; } // every change is welcome

private:
    std::function<void()> changed_;
    Microsoft::WRL::ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

} // namespace vellora::samples
