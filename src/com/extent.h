// The extent as several interfaces set and read it.
#pragma once

#include "com/ole.h"

namespace vellora::com {

class ControlHost;

/// The control has a content aspect only. Throws DV_E_DVASPECT for every other.
void need_content(DWORD aspect);

void set_extent(ControlHost& host, DWORD aspect, const SIZEL* extent);
void get_extent(ControlHost& host, DWORD aspect, SIZEL* extent);

} // namespace vellora::com
