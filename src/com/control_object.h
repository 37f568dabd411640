// The COM object of a control: its identity and lifetime, and one part for every interface it has.
#pragma once

#include "com/categorize_properties.h"
#include "com/class_info.h"
#include "com/control_host.h"
#include "com/data_object.h"
#include "com/error_info.h"
#include "com/in_place.h"
#include "com/live_object.h"
#include "com/object_safety.h"
#include "com/ole_control.h"
#include "com/ole_object.h"
#include "com/per_property_browsing.h"
#include "com/persist_bag.h"
#include "com/persist_memory.h"
#include "com/persist_storage.h"
#include "com/persist_stream.h"
#include "com/quick_activate.h"
#include "com/specify_pages.h"
#include "com/view.h"

#include <memory>

namespace vellora::com {

/// Aggregatable: this IUnknown is the inner one, which an outer object owns; all other interfaces answer
/// with the outer identity.
class ControlObject final : public IUnknown {
public:
    /// CLASS_E_NOAGGREGATION when an outer object asks for anything but the inner IUnknown.
    static HRESULT create(const ControlClass& control_class, ClientFactory factory, IUnknown* outer,
                          REFIID id, void** out) noexcept;

    STDMETHODIMP QueryInterface(REFIID id, void** out) noexcept override;
    STDMETHODIMP_(ULONG) AddRef() noexcept override;
    STDMETHODIMP_(ULONG) Release() noexcept override;

private:
    ControlObject(const ControlClass& control_class, ClientFactory factory, IUnknown* outer);
    ~ControlObject();

    void* own_interface(REFIID id) noexcept;

    LiveObject alive_;
    ULONG references_ = 1;
    ControlHost host_;
    OleObject ole_object_{host_};
    OleControlInterface ole_control_{host_};
    InPlaceObject in_place_object_{host_};
    InPlaceActiveObject in_place_active_object_{host_};
    View view_{host_};
    DataObject data_object_{host_};
    PersistBag persist_bag_{host_};
    PersistStream persist_stream_{host_};
    PersistStorage persist_storage_{host_};
    PersistMemory persist_memory_{host_};
    QuickActivation quick_activation_{host_};
    ClassInfo class_info_{host_};
    ErrorInfo error_info_{host_};
    SpecifyPages specify_pages_{host_};
    PropertyBrowsing property_browsing_{host_};
    PropertyCategories property_categories_{host_};
    ObjectSafety object_safety_{host_};
    std::unique_ptr<ControlClient> client_;
};

} // namespace vellora::com
