#include "support/form_host/property_window.h"

#include "support/container/failure.h"
#include "support/container/library.h"

#include <vector>
#include <wrl/client.h>

namespace vellora::test {
namespace {

using Microsoft::WRL::ComPtr;

void check(HRESULT result) {
    if (FAILED(result))
        throw CallFailed({result, L"", L""});
}

/// The platform looks for pages in the registry, or among the classes a program offers; the library is not registered.
class OfferedPages {
public:
    explicit OfferedPages(Site& site) {
        CAUUID pages = {};
        check(site.as<ISpecifyPropertyPages>()->GetPages(&pages));
        ids_.assign(pages.pElems, pages.pElems + pages.cElems);
        CoTaskMemFree(pages.pElems);
        for (const CLSID& id : ids_)
            offer(id);
    }
    ~OfferedPages() {
        for (const DWORD cookie : cookies_)
            CoRevokeClassObject(cookie);
    }
    OfferedPages(const OfferedPages&) = delete;
    OfferedPages& operator=(const OfferedPages&) = delete;

    const std::vector<CLSID>& ids() const noexcept { return ids_; }

private:
    void offer(REFCLSID class_id) {
        ComPtr<IClassFactory> factory;
        check(Library::instance().class_object(class_id, IID_PPV_ARGS(&factory)));
        cookies_.emplace_back();
        check(CoRegisterClassObject(class_id, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                    &cookies_.back()));
    }

    std::vector<CLSID> ids_;
    std::vector<DWORD> cookies_;
};

} // namespace

Json show_properties(HostForm& host, const Json& command) {
    Site& site = host.control(command.must("control").text());
    const OfferedPages pages(site);
    check(site.as<IOleObject>()->DoVerb(OLEIVERB_PROPERTIES, nullptr, nullptr, 0, host.form().window(), nullptr));
    return nullptr;
}

Json show_page(HostForm& host, const Json& command) {
    const OfferedPages pages(host.control(command.must("control").text()));
    static ComPtr<IPropertyPage> page;
    if (page)
        page->Deactivate();
    check(Library::instance()
              .create(pages.ids().at(static_cast<std::size_t>(command.must("page").number())))
              .As(&page));
    const ComPtr<IDispatch> control = host.control(command.must("control").text()).as<IDispatch>();
    IUnknown* object = control.Get();
    check(page->SetObjects(1, &object));
    PROPPAGEINFO info = {};
    info.cb = sizeof info;
    check(page->GetPageInfo(&info));
    CoTaskMemFree(info.pszTitle);
    const RECT place = {10, 60, 10 + info.size.cx, 60 + info.size.cy};
    check(page->Activate(host.form().window(), &place, FALSE));
    check(page->Show(SW_SHOW));
    return nullptr;
}

} // namespace vellora::test
