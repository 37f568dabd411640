#include "com/persist_memory.h"

#include "com/control_host.h"
#include "com/persist_steps.h"
#include "com/stream_store.h"

#include <cstring>

namespace vellora::com {

PersistMemory::PersistMemory(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP PersistMemory::GetClassID(CLSID* class_id) noexcept {
    return guard([&] { give_class_id(host_, class_id); });
}

STDMETHODIMP PersistMemory::IsDirty() noexcept {
    return host_.persistence().dirty() ? S_OK : S_FALSE;
}

STDMETHODIMP PersistMemory::Load(void* memory, ULONG size) noexcept {
    const Hold alive = host_.hold();
    return guard(IID_IPersistMemory, [&] {
        need(memory);
        StreamStore store(host_.stored_objects());
        store.load({static_cast<const std::byte*>(memory), size});
        load_settings(host_, store);
    });
}

STDMETHODIMP PersistMemory::Save(void* memory, BOOL clear_dirty, ULONG size) noexcept {
    const Hold alive = host_.hold();
    return guard(IID_IPersistMemory, [&] {
        need(memory);
        const std::uint32_t before = host_.persistence().begin_saving();
        const Bytes content = saved_settings(host_);
        if (content.size() > size)
            throw ComFailure(E_INVALIDARG);
        std::memcpy(memory, content.data(), content.size());
        host_.persistence().saved(clear_dirty != FALSE, before);
    });
}

STDMETHODIMP PersistMemory::GetSizeMax(ULONG* size) noexcept {
    const Hold alive = host_.hold();
    return guard(IID_IPersistMemory, [&] {
        need(size);
        *size = 0;
        *size = static_cast<ULONG>(saved_settings(host_).size());
    });
}

STDMETHODIMP PersistMemory::InitNew() noexcept {
    const Hold alive = host_.hold();
    return guard([&] { initialise_new(host_, E_UNEXPECTED); });
}

} // namespace vellora::com
