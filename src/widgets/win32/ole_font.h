// The host's font object, and its use by a window: the handle it stands for, renewed whenever somebody
// changes a property of the object.
#pragma once

#include "widgets/font.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>
#include <wrl/client.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vellora::win32 {

/// All that a font object says of itself.
struct FontLook {
    std::wstring name;
    LONGLONG size = 0; // ten-thousandths of a point
    SHORT weight = 0;
    SHORT character_set = 0;
    BOOL italic = FALSE;
    BOOL underlined = FALSE;
    BOOL struck_through = FALSE;
    bool operator==(const FontLook&) const = default;
};

class OleFont final : public Font {
public:
    /// Error 380 when the object is none, or no font that windows can use.
    explicit OleFont(Microsoft::WRL::ComPtr<IFontDisp> font);
    /// A font object of the platform's own. Error 380 when it cannot be made.
    static std::shared_ptr<OleFont> create(std::u16string_view face, float points);

    /// False for a font that does not answer.
    bool looks_like(const Font& other) const override;

    IFontDisp* dispatch() const { return dispatch_.Get(); }
    IFont* font() const { return font_.Get(); }

private:
    Microsoft::WRL::ComPtr<IFontDisp> dispatch_;
    Microsoft::WRL::ComPtr<IFont> font_;
};

/// The handle of a font object, kept alive while this stands. Null when the object gives none.
class FontHandle {
public:
    FontHandle() = default;
    explicit FontHandle(IFont* font);
    ~FontHandle();
    FontHandle(FontHandle&& other) noexcept;
    FontHandle& operator=(FontHandle&& other) noexcept;
    HFONT get() const { return handle_; }

private:
    Microsoft::WRL::ComPtr<IFont> font_;
    HFONT handle_ = nullptr;
};

/// Calls back after every change of a font object's properties, until it ends. An object that does not
/// tell about changes is no error.
class FontWatch {
public:
    FontWatch() = default;
    FontWatch(IFont* font, std::function<void()> changed);
    ~FontWatch();
    FontWatch(FontWatch&& other) noexcept;
    FontWatch& operator=(FontWatch&& other) noexcept;

private:
    std::shared_ptr<const std::function<void()>> changed_;
    Microsoft::WRL::ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

/// The font of one window: held, and applied now and after every change of the font object.
class FontInUse {
public:
    /// Gets each new handle, and whether it comes because somebody gave the font object another look. The handle
    /// before it is let go afterwards. May end the font in use.
    using Apply = std::function<void(HFONT handle, bool changed)>;
    explicit FontInUse(Apply apply);

    const FontRef& font() const { return font_; }
    /// The handle in use; the system's default font while there is none.
    HFONT handle() const;
    /// Error 380 for an object that is no OLE font; nothing means the system's default font.
    void set(const FontRef& font);

private:
    void renew(bool told);

    Apply apply_;
    FontRef font_;
    FontHandle handle_;
    std::optional<FontLook> look_;
    FontWatch watch_;
};

} // namespace vellora::win32
