// IAdviseSinkEx: the control tells those who keep a picture of it. Hooks let a test misbehave inside a notice.
#pragma once

#include "support/container/call_log.h"
#include "support/container/own_object.h"

#include <functional>

#include <ocidl.h>

namespace vellora::test {

class AdviseSink final : public OwnObject<IAdviseSinkEx> {
public:
    /// The log has to outlive the connection.
    explicit AdviseSink(CallLog& log) : OwnObject({IID_IAdviseSink, IID_IAdviseSinkEx}), log_(log) {}

    /// Runs inside every notice; the sink is held meanwhile.
    std::function<void()> on_notice;

    STDMETHODIMP_(void) OnDataChange(FORMATETC*, STGMEDIUM*) override { note("OnDataChange"); }
    STDMETHODIMP_(void) OnViewChange(DWORD, LONG) override { note("OnViewChange"); }
    STDMETHODIMP_(void) OnRename(IMoniker*) override { note("OnRename"); }
    STDMETHODIMP_(void) OnSave() override { note("OnSave"); }
    STDMETHODIMP_(void) OnClose() override { note("OnClose"); }
    STDMETHODIMP_(void) OnViewStatusChange(DWORD) override { note("OnViewStatusChange"); }

private:
    void note(const char* notice) {
        log_.enter(std::string("IAdviseSink::") + notice);
        AddRef();
        if (const auto hook = on_notice)
            hook();
        Release();
    }

    CallLog& log_;
};

} // namespace vellora::test
