// The icons of the column headers. The header draws from a copy of the host's image list, as the host may end
// or change its own while the list stands on the screen.
#pragma once

#include "widgets/win32/header_height.h"
#include "widgets/win32/list_headers.h"
#include "widgets/win32/native_image_list.h"

#include <optional>

namespace vellora::win32 {

/// Columns are counted from 0.
class ListHeaderIcons {
public:
    ListHeaderIcons(const ListWindow& window, ListHeaders& headers) : headers_(headers), height_(window) {}
    ~ListHeaderIcons();
    ListHeaderIcons(const ListHeaderIcons&) = delete;
    ListHeaderIcons& operator=(const ListHeaderIcons&) = delete;

    ImageListRef list() const { return list_; }
    /// Error 380 for a list the window system knows nothing of.
    void set_list(const ImageListRef& list);
    /// An empty key takes the icon away. Error 35600 for a column that does not exist, 35601 for a key that
    /// does not.
    void set(std::int32_t column, std::u16string_view key);
    /// Copies the list and looks every key up again.
    void renew();

private:
    void copy_list();
    int image(std::u16string_view key) const;

    ListHeaders& headers_;
    std::shared_ptr<NativeImageList> list_;
    UniqueImageList copy_;
    HeaderHeight height_;
};

} // namespace vellora::win32
