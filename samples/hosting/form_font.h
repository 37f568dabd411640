// The font of the form: the one the user chose for messages.
#pragma once

#include <windows.h>

#include <ocidl.h>
#include <wrl/client.h>

namespace vellora::samples {

class FormFont {
public:
    FormFont();
    FormFont(const FormFont&) = delete;
    FormFont& operator=(const FormFont&) = delete;
    ~FormFont() { DeleteObject(handle_); }

    HFONT handle() const noexcept { return handle_; }
    /// The same as an object, which is how controls get it.
    Microsoft::WRL::ComPtr<IFontDisp> object() const;
    /// The height of a line in pixels.
    int height() const;

private:
    LOGFONTW look_;
    HFONT handle_;
};

} // namespace vellora::samples
