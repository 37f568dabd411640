#include "server/host_objects.h"

#include "widgets/win32/ole_font.h"
#include "widgets/win32/ole_picture.h"

namespace vellora::server {

FontRef to_font(IFontDisp* font) {
    return font ? std::make_shared<win32::OleFont>(com::ComPtr<IFontDisp>(font)) : nullptr;
}

PictureRef to_picture(IPictureDisp* picture) {
    return picture ? std::make_shared<win32::OlePicture>(com::ComPtr<IPictureDisp>(picture)) : nullptr;
}

// Every font and picture in this process came in through the functions above or from the native peers.

com::ComPtr<IFontDisp> font_object(const FontRef& font) {
    return font ? static_cast<const win32::OleFont&>(*font).dispatch() : nullptr;
}

com::ComPtr<IPictureDisp> picture_object(const PictureRef& picture) {
    return picture ? static_cast<const win32::OlePicture&>(*picture).dispatch() : nullptr;
}

} // namespace vellora::server
