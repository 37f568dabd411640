// Font, picture and image list objects between their two forms: the host's own interfaces outside, a
// reference that is only held inside. Both ways it is the same object, never a copy.
#pragma once

#include "com/ole.h"
#include "widgets/font.h"
#include "widgets/image_list.h"

namespace vellora::server {

/// Null for null. Error 380 for an object that windows cannot use as a font or draw as a picture.
FontRef to_font(IFontDisp* font);
PictureRef to_picture(IPictureDisp* picture);
/// Null for null. Whether the object is an image list can be asked afterwards.
ImageListRef to_image_list(IDispatch* image_list);

/// Null for null.
com::ComPtr<IFontDisp> font_object(const FontRef& font);
com::ComPtr<IPictureDisp> picture_object(const PictureRef& picture);
com::ComPtr<IDispatch> image_list_object(const ImageListRef& image_list);

} // namespace vellora::server
