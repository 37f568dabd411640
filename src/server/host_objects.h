// Font and picture objects between their two forms: the host's own interfaces outside, a reference that is
// only held inside. Both ways it is the same object, never a copy.
#pragma once

#include "com/ole.h"
#include "widgets/font.h"

namespace vellora::server {

/// Null for null. Error 380 for an object that windows cannot use as a font or draw as a picture.
FontRef to_font(IFontDisp* font);
PictureRef to_picture(IPictureDisp* picture);

/// Null for null.
com::ComPtr<IFontDisp> font_object(const FontRef& font);
com::ComPtr<IPictureDisp> picture_object(const PictureRef& picture);

} // namespace vellora::server
