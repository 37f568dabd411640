#include "com/control_object.h"

namespace vellora::com {

namespace {

// References taken and given back while the object goes must not let it go a second time.
constexpr ULONG ending_references = 0x40000000;

} // namespace

HRESULT ControlObject::create(const ControlClass& control_class, ClientFactory factory, IUnknown* outer,
                              REFIID id, void** out) noexcept {
    return guard([&] {
        need(out);
        *out = nullptr;
        if (outer && id != IID_IUnknown)
            throw ComFailure(CLASS_E_NOAGGREGATION);
        const auto object = adopt<IUnknown>(new ControlObject(control_class, factory, outer));
        return object->QueryInterface(id, out);
    });
}

ControlObject::ControlObject(const ControlClass& control_class, ClientFactory factory, IUnknown* outer)
    : host_(control_class, this, outer ? outer : this), client_(factory(host_)) {
    host_.set_client(client_.get());
}

ControlObject::~ControlObject() {
    host_.end();
    client_.reset();
}

STDMETHODIMP ControlObject::QueryInterface(REFIID id, void** out) noexcept {
    return guard([&] {
        need(out);
        *out = id == IID_IUnknown ? static_cast<IUnknown*>(this) : own_interface(id);
        if (!*out)
            return E_NOINTERFACE;
        static_cast<IUnknown*>(*out)->AddRef();
        return S_OK;
    });
}

STDMETHODIMP_(ULONG) ControlObject::AddRef() noexcept {
    return ++references_;
}

STDMETHODIMP_(ULONG) ControlObject::Release() noexcept {
    const ULONG left = --references_;
    if (left == 0) {
        references_ = ending_references;
        delete this;
    }
    return left;
}

void* ControlObject::own_interface(REFIID id) noexcept {
    const struct {
        const IID& id;
        void* part;
    } parts[] = {
        {IID_IOleObject, static_cast<IOleObject*>(&ole_object_)},
        {IID_IOleControl, static_cast<IOleControl*>(&ole_control_)},
        {IID_IOleWindow, static_cast<IOleInPlaceObject*>(&in_place_object_)},
        {IID_IOleInPlaceObject, static_cast<IOleInPlaceObject*>(&in_place_object_)},
        {IID_IOleInPlaceActiveObject, static_cast<IOleInPlaceActiveObject*>(&in_place_active_object_)},
        {IID_IViewObject, static_cast<IViewObjectEx*>(&view_)},
        {IID_IViewObject2, static_cast<IViewObjectEx*>(&view_)},
        {IID_IViewObjectEx, static_cast<IViewObjectEx*>(&view_)},
        {IID_IDataObject, static_cast<IDataObject*>(&data_object_)},
        {IID_IPersist, static_cast<IPersistStreamInit*>(&persist_stream_)},
        {IID_IPersistStream, static_cast<IPersistStreamInit*>(&persist_stream_)},
        {IID_IPersistStreamInit, static_cast<IPersistStreamInit*>(&persist_stream_)},
        {IID_IPersistPropertyBag, static_cast<IPersistPropertyBag*>(&persist_bag_)},
        {IID_IPersistStorage, static_cast<IPersistStorage*>(&persist_storage_)},
        {IID_IPersistMemory, static_cast<IPersistMemory*>(&persist_memory_)},
        {IID_IQuickActivate, static_cast<IQuickActivate*>(&quick_activation_)},
        {IID_IProvideClassInfo, static_cast<IProvideClassInfo2*>(&class_info_)},
        {IID_IProvideClassInfo2, static_cast<IProvideClassInfo2*>(&class_info_)},
        {IID_IConnectionPointContainer, static_cast<IConnectionPointContainer*>(&host_.connections())},
        {IID_ISupportErrorInfo, static_cast<ISupportErrorInfo*>(&error_info_)},
        {IID_ISpecifyPropertyPages, static_cast<ISpecifyPropertyPages*>(&specify_pages_)},
        {IID_IPerPropertyBrowsing, static_cast<IPerPropertyBrowsing*>(&property_browsing_)},
        {IID_ICategorizeProperties, static_cast<ICategorizeProperties*>(&property_categories_)},
        {IID_IObjectSafety, static_cast<IObjectSafety*>(&object_safety_)},
    };
    for (const auto& entry : parts)
        if (entry.id == id)
            return entry.part;
    return client_ ? client_->interface_of(id) : nullptr;
}

} // namespace vellora::com
