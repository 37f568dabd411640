// The control's picture: drawn into somebody's device context, or kept as a metafile.
#pragma once

#include "com/ole.h"

namespace vellora::com {

class ControlHost;

/// Opaque all over, drawn in one layer.
inline constexpr DWORD view_status = VIEWSTATUS_OPAQUE;

/// Draws the control into a rectangle given in logical units of `dc`, which is left as it was.
void draw_face(ControlHost& host, HDC dc, const RECT& bounds);

/// The control at its own size, for the caller to free.
HENHMETAFILE make_enhanced_metafile(ControlHost& host);
HGLOBAL make_metafile_picture(ControlHost& host);

} // namespace vellora::com
