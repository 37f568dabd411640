// The host's picture object, as far as a window draws it.
#pragma once

#include "widgets/font.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>
#include <wrl/client.h>

namespace vellora::win32 {

class OlePicture final : public Picture {
public:
    /// Error 380 when the object is none, or no picture that can be drawn.
    explicit OlePicture(Microsoft::WRL::ComPtr<IPictureDisp> picture);

    IPictureDisp* dispatch() const { return dispatch_.Get(); }
    IPicture* picture() const { return picture_.Get(); }

    /// In screen pixels; 0 by 0 for an empty picture.
    SIZE pixel_size() const;
    /// Draws the whole picture into the rectangle.
    void draw(HDC dc, const RECT& target) const;

private:
    Microsoft::WRL::ComPtr<IPictureDisp> dispatch_;
    Microsoft::WRL::ComPtr<IPicture> picture_;
};

} // namespace vellora::win32
