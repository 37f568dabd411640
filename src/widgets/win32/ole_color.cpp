#include "widgets/win32/ole_color.h"

#include "runtime/host_error.h"

#include <olectl.h>

namespace vellora::win32 {

COLORREF to_color_ref(OleColor color) {
    COLORREF translated = 0;
    if (FAILED(OleTranslateColor(color, nullptr, &translated))) {
        throw HostError(error_number::invalid_property_value);
    }
    return translated;
}

OleColor checked_color(OleColor color) {
    to_color_ref(color);
    return color;
}

HBRUSH ColorBrush::get(OleColor color) {
    const COLORREF wanted = to_color_ref(color);
    if (!brush_ || wanted != color_) {
        brush_.reset(CreateSolidBrush(wanted));
        color_ = wanted;
    }
    return brush_.get();
}

} // namespace vellora::win32
