// The host's image list as the window system has it.
#pragma once

#include "widgets/image_list.h"

#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <type_traits>

namespace vellora::win32 {

class NativeImageList : public ImageList {
public:
    /// As it is at this moment, null for none. It stays the host's, which may end it any time afterwards.
    virtual HIMAGELIST handle() const = 0;
};

struct ImageListDeleter {
    using pointer = HIMAGELIST;
    void operator()(HIMAGELIST list) const noexcept { ImageList_Destroy(list); }
};
using UniqueImageList = std::unique_ptr<std::remove_pointer_t<HIMAGELIST>, ImageListDeleter>;

} // namespace vellora::win32
