#include "widgets/win32/list_header_icons.h"

#include "runtime/host_error.h"

#include <string>
#include <utility>

namespace vellora::win32 {

namespace {

UniqueImageList copy_of(HIMAGELIST list) {
    UniqueImageList copy(list ? ImageList_Duplicate(list) : nullptr);
    // The ground is the header's, whatever the host has chosen for other places.
    if (copy)
        ImageList_SetBkColor(copy.get(), CLR_NONE);
    return copy;
}

// Of a header that icons of the list fit into, 0 without a list.
int header_height(HIMAGELIST icons) {
    int width = 0;
    int height = 0;
    return ImageList_GetIconSize(icons, &width, &height) ? height + 2 * GetSystemMetrics(SM_CYBORDER) : 0;
}

} // namespace

ListHeaderIcons::~ListHeaderIcons() {
    headers_.draw_icons_from(nullptr);
}

void ListHeaderIcons::set_list(const ImageListRef& list) {
    auto native = std::dynamic_pointer_cast<NativeImageList>(list);
    if (list && !native)
        throw HostError(error_number::invalid_property_value);
    list_ = std::move(native);
    renew();
}

void ListHeaderIcons::set(std::int32_t column, std::u16string_view key) {
    headers_.require(column);
    copy_list();
    const int found = key.empty() ? no_image : image(key);
    if (!key.empty() && found == no_image)
        throw HostError(error_number::element_not_found);
    headers_.set_icon(column, key, found);
}

void ListHeaderIcons::renew() {
    copy_list();
    for (std::int32_t column = 0; column < headers_.count(); ++column) {
        const std::u16string key = headers_.icon(column);
        const int found = key.empty() ? no_image : image(key);
        // Asking runs the host's code, which may have taken columns away or changed the key.
        if (column < headers_.count() && headers_.icon(column) == key)
            headers_.set_icon(column, key, found);
    }
}

// Asking for the handle runs the host's code, which may have assigned another list meanwhile.
void ListHeaderIcons::copy_list() {
    const auto list = list_;
    UniqueImageList copy = copy_of(list ? list->handle() : nullptr);
    if (list != list_)
        return;
    headers_.draw_icons_from(copy.get());
    copy_ = std::move(copy);
    height_.require(header_height(copy_.get()));
}

int ListHeaderIcons::image(std::u16string_view key) const {
    const auto list = list_;
    const auto found = list ? list->image(key) : std::nullopt;
    const bool drawable = found && copy_ && *found >= 0 && *found < ImageList_GetImageCount(copy_.get());
    return drawable ? *found : no_image;
}

} // namespace vellora::win32
