#include "com/persist_stream.h"

#include "com/control_host.h"
#include "com/persist_steps.h"

namespace vellora::com {

PersistStream::PersistStream(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP PersistStream::GetClassID(CLSID* class_id) noexcept {
    return guard([&] { give_class_id(host_, class_id); });
}

STDMETHODIMP PersistStream::IsDirty() noexcept {
    return host_.persistence().dirty() ? S_OK : S_FALSE;
}

STDMETHODIMP PersistStream::Load(IStream* stream) noexcept {
    const Hold alive = host_.hold();
    return guard(IID_IPersistStreamInit, [&] { load_from_stream(host_, stream); });
}

STDMETHODIMP PersistStream::Save(IStream* stream, BOOL clear_dirty) noexcept {
    const Hold alive = host_.hold();
    return guard(IID_IPersistStreamInit, [&] {
        const std::uint32_t before = host_.persistence().begin_saving();
        save_to_stream(host_, stream);
        host_.persistence().saved(clear_dirty != FALSE, before);
    });
}

STDMETHODIMP PersistStream::GetSizeMax(ULARGE_INTEGER* size) noexcept {
    const Hold alive = host_.hold();
    return guard(IID_IPersistStreamInit, [&] {
        need(size);
        size->QuadPart = 0;
        size->QuadPart = saved_settings(host_).size();
    });
}

STDMETHODIMP PersistStream::InitNew() noexcept {
    const Hold alive = host_.hold();
    return guard([&] { initialise_new(host_, E_UNEXPECTED); });
}

} // namespace vellora::com
