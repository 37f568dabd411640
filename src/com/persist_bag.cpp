#include "com/persist_bag.h"

#include "com/bag_store.h"
#include "com/control_host.h"
#include "com/persist_steps.h"

namespace vellora::com {

PersistBag::PersistBag(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP PersistBag::GetClassID(CLSID* class_id) noexcept {
    return guard([&] { give_class_id(host_, class_id); });
}

STDMETHODIMP PersistBag::InitNew() noexcept {
    const Hold alive = host_.hold();
    return guard([&] { initialise_new(host_, E_UNEXPECTED); });
}

STDMETHODIMP PersistBag::Load(IPropertyBag* bag, IErrorLog* log) noexcept {
    const Hold alive = host_.hold();
    return guard(IID_IPersistPropertyBag, [&] {
        need(bag);
        BagStore store(bag, log);
        load_settings(host_, store);
    });
}

STDMETHODIMP PersistBag::Save(IPropertyBag* bag, BOOL clear_dirty, BOOL) noexcept {
    const Hold alive = host_.hold();
    return guard(IID_IPersistPropertyBag, [&] {
        need(bag);
        const std::uint32_t before = host_.persistence().begin_saving();
        BagStore store(bag, nullptr);
        save_settings(host_, store);
        host_.persistence().saved(clear_dirty != FALSE, before);
    });
}

} // namespace vellora::com
