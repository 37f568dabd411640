#include "com/verbs.h"

#include "com/bstr.h"
#include "com/control_host.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace vellora::com {

namespace {

void show(ControlHost& host, const Activation::Proposal& proposal) {
    host.activation().activate(proposal);
    if (host.activation().in_place())
        ShowWindow(host.client().window(), SW_SHOWNA);
}

void work_with(ControlHost& host, const Activation::Proposal& proposal) {
    show(host, proposal);
    if (host.activation().in_place() && !host.ambients().ui_dead())
        host.activation().activate_ui(Activation::Focus::take);
}

void primary(ControlHost& host, const Activation::Proposal& proposal) {
    if (host.ambients().user_mode())
        work_with(host, proposal);
    else
        show(host, proposal);
}

void hide(ControlHost& host) {
    host.activation().deactivate_ui();
    ShowWindow(host.client().window(), SW_HIDE);
}

/// The container's own property window, otherwise one of the platform.
HRESULT show_properties(ControlHost& host, HWND parent) {
    if (const ComPtr<IOleControlSite> site = host.site().control_site(); site && SUCCEEDED(site->ShowPropertyFrame()))
        return S_OK;
    if (host.control_class().pages.empty())
        return E_NOTIMPL;
    std::vector<CLSID> pages;
    std::ranges::transform(host.control_class().pages, std::back_inserter(pages), &PageClass::class_id);
    IUnknown* object = host.controlling();
    const std::u16string name = host.display_name();
    return OleCreatePropertyFrame(parent, 0, 0, wide(name.c_str()), 1, &object, static_cast<ULONG>(pages.size()),
                                  pages.data(), LOCALE_USER_DEFAULT, 0, nullptr);
}

} // namespace

HRESULT do_verb(ControlHost& host, LONG verb, const Activation::Proposal& proposal) {
    switch (verb) {
    case OLEIVERB_PRIMARY:
        primary(host, proposal);
        return S_OK;
    case OLEIVERB_SHOW:
    case OLEIVERB_INPLACEACTIVATE:
        show(host, proposal);
        return S_OK;
    case OLEIVERB_OPEN:
    case OLEIVERB_UIACTIVATE:
        work_with(host, proposal);
        return S_OK;
    case OLEIVERB_HIDE:
        hide(host);
        return S_OK;
    case OLEIVERB_PROPERTIES:
        return show_properties(host, proposal.parent);
    default:
        if (verb < 0)
            return E_NOTIMPL;
        primary(host, proposal);
        return OLEOBJ_S_INVALIDVERB;
    }
}

void close(ControlHost& host, DWORD save_option) {
    const bool save = save_option == OLECLOSE_SAVEIFDIRTY || save_option == OLECLOSE_PROMPTSAVE;
    if (const ComPtr<IOleClientSite> site = host.site().get(); site && save && host.persistence().dirty())
        site->SaveObject();
    host.activation().deactivate();
    host.views().closed();
}

} // namespace vellora::com
