#include "widgets/win32/ole_picture.h"

#include "runtime/host_error.h"
#include "widgets/win32/handles.h"

#include <utility>

namespace vellora::win32 {

namespace {

constexpr int himetric_per_inch = 2540;

struct HimetricSize {
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
};

HimetricSize himetric_size(IPicture* picture) {
    HimetricSize size;
    picture->get_Width(&size.width);
    picture->get_Height(&size.height);
    return size;
}

} // namespace

OlePicture::OlePicture(Microsoft::WRL::ComPtr<IPictureDisp> picture) : dispatch_(std::move(picture)) {
    if (!dispatch_ || FAILED(dispatch_.As(&picture_))) {
        throw HostError(error_number::invalid_property_value);
    }
}

SIZE OlePicture::pixel_size() const {
    const WindowDc screen(nullptr);
    const HimetricSize size = himetric_size(picture_.Get());
    return {MulDiv(size.width, GetDeviceCaps(screen.get(), LOGPIXELSX), himetric_per_inch),
            MulDiv(size.height, GetDeviceCaps(screen.get(), LOGPIXELSY), himetric_per_inch)};
}

void OlePicture::draw(HDC dc, const RECT& target) const {
    const HimetricSize size = himetric_size(picture_.Get());
    // Picture co-ordinates grow upwards, hence the source from its height downwards.
    picture_->Render(dc, target.left, target.top, target.right - target.left, target.bottom - target.top, 0,
                     size.height, size.width, -size.height, &target);
}

} // namespace vellora::win32
