#include "support/container/container.h"

#include "support/container/failure.h"
#include "support/container/library.h"

namespace vellora::test {

using Microsoft::WRL::ComPtr;

namespace {

void must(HRESULT result, const wchar_t* step) {
    if (FAILED(result))
        throw CallFailed({result, L"Container", step});
}

} // namespace

Container::Container(const Form::Look& look) : form_(look) {}

Container::~Container() {
    for (const ComPtr<Site>& site : sites_) {
        site->events().forget_handlers();
        site->destroy();
    }
    destroy_form();
}

Site& Container::add_site(const std::wstring& name, const RECT& place) {
    sites_.emplace_back(new Site(&form_, name, place));
    return *sites_.back().Get();
}

Site& Container::prepare(REFCLSID class_id, const std::wstring& name, const RECT& place, bool design) {
    Site& site = add_site(name, place);
    site.ambients().give(DISPID_AMBIENT_USERMODE, !design);
    site.take(Library::instance().create(class_id));
    must(site.give_site(), L"SetClientSite");
    return site;
}

void Container::show(Site& site) {
    site.set_extent();
    must(site.listen(), L"Advise");
    must(site.activate(), L"DoVerb");
}

Site& Container::add(REFCLSID class_id, const std::wstring& name, const RECT& place, bool design) {
    Site& site = prepare(class_id, name, place, design);
    must(site.init_new(), L"InitNew");
    show(site);
    return site;
}

Site& Container::load(REFCLSID class_id, PropertyBag& bag, const std::wstring& name, const RECT& place,
                      bool design) {
    Site& site = prepare(class_id, name, place, design);
    must(site.load(bag), L"Load");
    show(site);
    return site;
}

void Container::destroy_form() {
    form_.destroy();
    for (const ComPtr<Site>& site : sites_)
        site->lose_form();
}

} // namespace vellora::test
