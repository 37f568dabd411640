// ISupportErrorInfo: which interfaces leave a description of their errors with the thread.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class ErrorInfo final : public Delegating<ISupportErrorInfo> {
public:
    explicit ErrorInfo(ControlHost& host);

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
