#include "support/container/ambients.h"

#include <ocidl.h>
#include <utility>

namespace vellora::test {

using Microsoft::WRL::ComPtr;

namespace {

std::string name_of(DISPID id) {
    switch (id) {
    case DISPID_AMBIENT_USERMODE:
        return "UserMode";
    case DISPID_AMBIENT_DISPLAYNAME:
        return "DisplayName";
    case DISPID_AMBIENT_FONT:
        return "Font";
    case DISPID_AMBIENT_UIDEAD:
        return "UIDead";
    case DISPID_AMBIENT_LOCALEID:
        return "LocaleID";
    default:
        return std::to_string(id);
    }
}

} // namespace

Ambients::Ambients(SiteState& state) : SitePart(state) {
    give(DISPID_AMBIENT_USERMODE, true);
    give(DISPID_AMBIENT_DISPLAYNAME, state.name);
    give(DISPID_AMBIENT_FONT, make_font(L"Tahoma", 8.25).Get());
    give(DISPID_AMBIENT_BACKCOLOR, static_cast<long>(0x80000005UL));
    give(DISPID_AMBIENT_FORECOLOR, static_cast<long>(0x80000008UL));
    give(DISPID_AMBIENT_LOCALEID, static_cast<long>(LOCALE_USER_DEFAULT));
    give(DISPID_AMBIENT_UIDEAD, false);
    give(DISPID_AMBIENT_SCALEUNITS, L"Twip");
}

void Ambients::give(DISPID id, Variant value) {
    values_[id] = std::move(value);
}
void Ambients::withhold(DISPID id) {
    values_.erase(id);
}
void Ambients::withhold_all() {
    values_.clear();
}

void Ambients::announce(DISPID id) {
    ComPtr<IOleControl> control;
    if (state_.control && SUCCEEDED(state_.control.As(&control)))
        control->OnAmbientPropertyChange(id);
}

STDMETHODIMP Ambients::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}
STDMETHODIMP Ambients::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    *info = nullptr;
    return DISP_E_BADINDEX;
}
STDMETHODIMP Ambients::GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) {
    return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP Ambients::Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                              UINT*) {
    if (const auto answer = instead("Ambient", "(" + name_of(id) + ")"))
        return *answer;
    const auto found = values_.find(id);
    if (!(kind & DISPATCH_PROPERTYGET) || found == values_.end() || !result)
        return DISP_E_MEMBERNOTFOUND;
    return VariantCopy(result, found->second.argument());
}

ComPtr<IDispatch> make_font(const std::wstring& face, double points) {
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = const_cast<LPOLESTR>(face.c_str());
    description.cySize.int64 = static_cast<LONGLONG>(points * 10000);
    description.sWeight = FW_NORMAL;
    description.sCharset = DEFAULT_CHARSET;
    ComPtr<IFontDisp> font;
    OleCreateFontIndirect(&description, IID_IFontDisp, reinterpret_cast<void**>(font.GetAddressOf()));
    return font;
}

} // namespace vellora::test
