#include "widgets/win32/visual_style.h"

namespace vellora::win32 {

namespace {

// Only a program whose manifest asks for them gets the common controls that follow the theme; any other is
// drawn the classic way.
bool has_themed_controls() {
    ACTCTX_SECTION_KEYED_DATA button{};
    button.cbSize = sizeof button;
    return FindActCtxSectionStringW(0, nullptr, ACTIVATION_CONTEXT_SECTION_WINDOW_CLASS_REDIRECTION,
                                    L"Button", &button) != 0;
}

} // namespace

bool uses_visual_styles() {
    return IsAppThemed() && IsThemeActive() && has_themed_controls();
}

UniqueTheme open_theme(const wchar_t* class_name) {
    return UniqueTheme(uses_visual_styles() ? OpenThemeData(nullptr, class_name) : nullptr);
}

} // namespace vellora::win32
