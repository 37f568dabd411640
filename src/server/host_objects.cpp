#include "server/host_objects.h"

#include "server/host_image_list.h"
#include "widgets/win32/ole_font.h"
#include "widgets/win32/ole_picture.h"

namespace vellora::server {

FontRef to_font(IFontDisp* font) {
    return font ? std::make_shared<win32::OleFont>(com::ComPtr<IFontDisp>(font)) : nullptr;
}

PictureRef to_picture(IPictureDisp* picture) {
    return picture ? std::make_shared<win32::OlePicture>(com::ComPtr<IPictureDisp>(picture)) : nullptr;
}

ImageListRef to_image_list(IDispatch* image_list) {
    return image_list ? std::make_shared<HostImageList>(com::ComPtr<IDispatch>(image_list)) : nullptr;
}

// Every one of them in this process came in through the functions above or from the native peers.

com::ComPtr<IFontDisp> font_object(const FontRef& font) {
    return font ? static_cast<const win32::OleFont&>(*font).dispatch() : nullptr;
}

com::ComPtr<IPictureDisp> picture_object(const PictureRef& picture) {
    return picture ? static_cast<const win32::OlePicture&>(*picture).dispatch() : nullptr;
}

com::ComPtr<IDispatch> image_list_object(const ImageListRef& image_list) {
    return image_list ? static_cast<const HostImageList&>(*image_list).dispatch() : nullptr;
}

} // namespace vellora::server
