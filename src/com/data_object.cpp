#include "com/data_object.h"

#include "com/control_host.h"
#include "com/enumerator.h"
#include "com/face.h"

namespace vellora::com {

namespace {

constexpr LONG whole = -1;
constexpr FORMATETC picture_format = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, whole, TYMED_MFPICT};
constexpr FORMATETC enhanced_format = {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, whole, TYMED_ENHMF};

bool fits(const FORMATETC& wanted, const FORMATETC& offered) {
    return wanted.cfFormat == offered.cfFormat && wanted.dwAspect == offered.dwAspect &&
           (wanted.tymed & offered.tymed) != 0;
}

} // namespace

DataObject::DataObject(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP DataObject::GetData(FORMATETC* format, STGMEDIUM* medium) noexcept {
    const Hold alive = host_.hold();
    return guard([&] {
        need(format);
        need(medium);
        *medium = {};
        if (fits(*format, enhanced_format)) {
            medium->hEnhMetaFile = make_enhanced_metafile(host_);
            medium->tymed = TYMED_ENHMF;
        } else if (fits(*format, picture_format)) {
            medium->hMetaFilePict = make_metafile_picture(host_);
            medium->tymed = TYMED_MFPICT;
        } else {
            throw ComFailure(DV_E_FORMATETC);
        }
    });
}

STDMETHODIMP DataObject::GetDataHere(FORMATETC*, STGMEDIUM*) noexcept {
    return DV_E_FORMATETC;
}

STDMETHODIMP DataObject::QueryGetData(FORMATETC* format) noexcept {
    return guard([&] {
        need(format);
        const bool offered = fits(*format, picture_format) || fits(*format, enhanced_format);
        return offered ? S_OK : DV_E_FORMATETC;
    });
}

STDMETHODIMP DataObject::GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical) noexcept {
    return guard([&] {
        need(format);
        need(canonical);
        *canonical = *format;
        canonical->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    });
}

STDMETHODIMP DataObject::SetData(FORMATETC*, STGMEDIUM*, BOOL) noexcept {
    return E_NOTIMPL;
}

STDMETHODIMP DataObject::EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) noexcept {
    return guard([&] {
        need(formats);
        *formats = nullptr;
        if (direction != DATADIR_GET)
            throw ComFailure(E_NOTIMPL);
        return Enumerator<IEnumFORMATETC, FORMATETC, FORMATETC>::create({picture_format, enhanced_format},
                                                                        formats);
    });
}

STDMETHODIMP DataObject::DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink,
                                 DWORD* connection) noexcept {
    const Hold alive = host_.hold();
    return guard([&] {
        need(format);
        need(connection);
        return host_.views().data_advises()->Advise(this, format, flags, sink, connection);
    });
}

STDMETHODIMP DataObject::DUnadvise(DWORD connection) noexcept {
    return guard([&] { return host_.views().data_advises()->Unadvise(connection); });
}

STDMETHODIMP DataObject::EnumDAdvise(IEnumSTATDATA** advises) noexcept {
    return guard([&] {
        need(advises);
        return host_.views().data_advises()->EnumAdvise(advises);
    });
}

} // namespace vellora::com
