#include "com/extent.h"

#include "com/control_host.h"

namespace vellora::com {

void need_content(DWORD aspect) {
    if (aspect != DVASPECT_CONTENT)
        throw ComFailure(DV_E_DVASPECT);
}

void set_extent(ControlHost& host, DWORD aspect, const SIZEL* extent) {
    need_content(aspect);
    need(extent);
    // In place the window keeps the rectangle of the container, which sets another one after this.
    const SIZE pixels = to_pixels(*extent);
    if (!host.activation().in_place())
        host.apply_size(pixels, nullptr);
    // The layout may have asked for another size; otherwise the container reads back what it set.
    if (host.activation().in_place() || same_size(pixels, host.size()))
        host.extent().set_himetric(*extent);
    host.view_changed();
}

void get_extent(ControlHost& host, DWORD aspect, SIZEL* extent) {
    need(extent);
    *extent = {};
    need_content(aspect);
    *extent = host.extent().himetric();
}

} // namespace vellora::com
