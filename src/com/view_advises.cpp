#include "com/view_advises.h"

#include "com/guard.h"

namespace vellora::com {

namespace {

constexpr LONG whole = -1;

} // namespace

void ViewAdvises::set_view_sink(DWORD aspects, DWORD flags, IAdviseSink* sink) {
    sink_ = sink;
    aspects_ = aspects;
    flags_ = flags;
    if (sink && (flags & ADVF_PRIMEFIRST) != 0)
        view_changed();
}

void ViewAdvises::view_sink(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const {
    if (aspects)
        *aspects = aspects_;
    if (flags)
        *flags = flags_;
    if (sink)
        sink_.CopyTo(sink);
}

IOleAdviseHolder* ViewAdvises::ole_advises() {
    if (!ole_advises_)
        check(CreateOleAdviseHolder(&ole_advises_));
    return ole_advises_.Get();
}

IDataAdviseHolder* ViewAdvises::data_advises() {
    if (!data_advises_)
        check(CreateDataAdviseHolder(&data_advises_));
    return data_advises_.Get();
}

void ViewAdvises::view_changed() {
    const ComPtr<IAdviseSink> sink = sink_;
    if (!sink || (aspects_ & DVASPECT_CONTENT) == 0)
        return;
    if ((flags_ & ADVF_ONLYONCE) != 0)
        sink_.Reset();
    sink->OnViewChange(DVASPECT_CONTENT, whole);
}

void ViewAdvises::data_changed(IUnknown* control) {
    const ComPtr<IDataAdviseHolder> advises = data_advises_;
    ComPtr<IDataObject> data;
    if (advises && SUCCEEDED(control->QueryInterface(IID_PPV_ARGS(&data))))
        advises->SendOnDataChange(data.Get(), 0, 0);
}

void ViewAdvises::saved() {
    if (const ComPtr<IOleAdviseHolder> advises = ole_advises_)
        advises->SendOnSave();
}

void ViewAdvises::closed() {
    if (const ComPtr<IOleAdviseHolder> advises = ole_advises_)
        advises->SendOnClose();
}

void ViewAdvises::clear() noexcept {
    sink_.Reset();
    ole_advises_.Reset();
    data_advises_.Reset();
}

} // namespace vellora::com
