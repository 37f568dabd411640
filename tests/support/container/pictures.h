// Picture objects made on the spot, each with content that shows where it was drawn and how.
#pragma once

#include <string>
#include <windows.h>

#include <oaidl.h>
#include <wrl/client.h>

namespace vellora::test {

/// `kind` is bitmap, icon or metafile: a chequered ground of 8 by 8 pixels in two light colours with a dark
/// frame. Null for another kind. An icon has the platform's own size.
Microsoft::WRL::ComPtr<IDispatch> make_picture(const std::string& kind, SIZE pixels);

/// A bitmap from a file; null when it cannot be read.
Microsoft::WRL::ComPtr<IDispatch> load_picture(const std::wstring& path);

} // namespace vellora::test
