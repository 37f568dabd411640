// IDataObject: the control's picture as a metafile, which containers keep for pages they show without it.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class DataObject final : public Delegating<IDataObject> {
public:
    explicit DataObject(ControlHost& host);

    STDMETHODIMP GetData(FORMATETC* format, STGMEDIUM* medium) noexcept override;
    STDMETHODIMP GetDataHere(FORMATETC* format, STGMEDIUM* medium) noexcept override;
    STDMETHODIMP QueryGetData(FORMATETC* format) noexcept override;
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical) noexcept override;
    STDMETHODIMP SetData(FORMATETC* format, STGMEDIUM* medium, BOOL release) noexcept override;
    STDMETHODIMP EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) noexcept override;
    STDMETHODIMP DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink,
                         DWORD* connection) noexcept override;
    STDMETHODIMP DUnadvise(DWORD connection) noexcept override;
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA** advises) noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
