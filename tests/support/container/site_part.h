// One interface of a control's site. All parts are one COM object: its identity and count are the site's.
#pragma once

#include "support/container/site_state.h"

namespace vellora::test {

template <class Interface>
class SitePart : public Interface {
public:
    explicit SitePart(SiteState& state) : state_(state) {}
    SitePart(const SitePart&) = delete;
    SitePart& operator=(const SitePart&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        return state_.identity->QueryInterface(id, object);
    }
    STDMETHODIMP_(ULONG) AddRef() override { return state_.identity->AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return state_.identity->Release(); }

protected:
    ~SitePart() = default;
    HRESULT enter(const char* call, const std::string& details = {}) {
        return state_.log.enter(call, details);
    }

    /// For calls that give something out, which is to be cleared before.
    std::optional<HRESULT> instead(const char* call, const std::string& details = {}) {
        return state_.log.instead(call, details);
    }

    SiteState& state_;
};

} // namespace vellora::test
