#include "com/persist_storage.h"

#include "com/control_host.h"
#include "com/persist_steps.h"
#include "com/stream_store.h"

namespace vellora::com {

namespace {

constexpr wchar_t stream_name[] = L"Contents";

} // namespace

PersistStorage::PersistStorage(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP PersistStorage::GetClassID(CLSID* class_id) noexcept {
    return guard([&] { give_class_id(host_, class_id); });
}

STDMETHODIMP PersistStorage::IsDirty() noexcept {
    return host_.persistence().dirty() ? S_OK : S_FALSE;
}

STDMETHODIMP PersistStorage::InitNew(IStorage* storage) noexcept {
    const Hold alive = host_.hold();
    return guard([&] {
        need(storage);
        initialise_new(host_, CO_E_ALREADYINITIALIZED);
    });
}

STDMETHODIMP PersistStorage::Load(IStorage* storage) noexcept {
    const Hold alive = host_.hold();
    return guard(IID_IPersistStorage, [&] {
        need(storage);
        ComPtr<IStream> stream;
        check(storage->OpenStream(stream_name, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, &stream));
        load_from_stream(host_, stream.Get());
    });
}

STDMETHODIMP PersistStorage::Save(IStorage* storage, BOOL same_as_load) noexcept {
    const Hold alive = host_.hold();
    return guard(IID_IPersistStorage, [&] {
        need(storage);
        const std::uint32_t before = host_.persistence().begin_saving();
        // A new stream ends the one of the last save, so there has to be something to write.
        const Bytes content = saved_settings(host_);
        ComPtr<IStream> stream;
        check(storage->CreateStream(stream_name, STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0, 0,
                                    &stream));
        need(stream.Get());
        write_exactly(stream.Get(), content);
        host_.persistence().saved(false, before);
        copied_ = same_as_load == FALSE;
    });
}

STDMETHODIMP PersistStorage::SaveCompleted(IStorage* storage) noexcept {
    // Only now it is certain that what was written is kept. A copy that does not become the control's own storage leaves
    // that as unsaved as it was.
    const Hold alive = host_.hold();
    return guard([&] {
        if (storage || !copied_)
            host_.persistence().completed();
        host_.views().saved();
    });
}

STDMETHODIMP PersistStorage::HandsOffStorage() noexcept {
    return S_OK;
}

} // namespace vellora::com
