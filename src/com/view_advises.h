// Those who show the control's picture and want to know when it changed: the container's view sink, and the
// links that IOleObject and IDataObject keep.
#pragma once

#include "com/ole.h"

namespace vellora::com {

class ViewAdvises {
public:
    /// The one view sink; null takes it away.
    void set_view_sink(DWORD aspects, DWORD flags, IAdviseSink* sink);
    void view_sink(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const;

    IOleAdviseHolder* ole_advises();
    IDataAdviseHolder* data_advises();

    void view_changed();
    void data_changed(IUnknown* control);
    void saved();
    void closed();
    void clear() noexcept;

private:
    ComPtr<IAdviseSink> sink_;
    DWORD aspects_ = 0;
    DWORD flags_ = 0;
    ComPtr<IOleAdviseHolder> ole_advises_;
    ComPtr<IDataAdviseHolder> data_advises_;
};

} // namespace vellora::com
