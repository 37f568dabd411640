#include "com/specify_pages.h"

#include "com/control_host.h"
#include "com/task_array.h"

namespace vellora::com {

SpecifyPages::SpecifyPages(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP SpecifyPages::GetPages(CAUUID* pages) noexcept {
    return guard([&] {
        need(pages);
        *pages = {};
        const std::span<const PageClass> own = host_.control_class().pages;
        TaskArray<GUID> ids = make_task_array<GUID>(own.size());
        std::ranges::transform(own, ids.get(), &PageClass::class_id);
        *pages = {static_cast<ULONG>(own.size()), ids.release()};
    });
}

} // namespace vellora::com
