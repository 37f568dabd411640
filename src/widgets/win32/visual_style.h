// The system's visual styles, where this process takes part in them.
#pragma once

#include <windows.h>

#include <uxtheme.h>

#include <memory>
#include <type_traits>

namespace vellora::win32 {

/// Whether the common controls of this process are drawn in visual styles, so that ours should be too.
bool uses_visual_styles();

struct ThemeDeleter {
    using pointer = HTHEME;
    void operator()(HTHEME theme) const noexcept { CloseThemeData(theme); }
};
using UniqueTheme = std::unique_ptr<std::remove_pointer_t<HTHEME>, ThemeDeleter>;

/// The theme of a class; null where visual styles are not used or do not know the class.
UniqueTheme open_theme(const wchar_t* class_name);

} // namespace vellora::win32
