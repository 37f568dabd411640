#include "columns/header_icons.h"

#include "columns/column_set.h"
#include "runtime/host_error.h"

namespace vellora {

namespace {

constexpr std::u16string_view expected_text =
    u"HeaderIcons takes an image list: an object with the properties hImageList and ListImages";

} // namespace

ImageListRef HeaderIcons::Icons() const {
    return core_.state.moHeaderIcons;
}

void HeaderIcons::putref_Icons(const ImageListRef& icons) {
    if (icons && !icons->is_image_list()) {
        core_.raise(error_number::invalid_property_value, expected_text);
    }
    core_.state.moHeaderIcons = icons;
    core_.parts.ListView1.set_column_header_icons(icons);
    core_.property_changed(u"HeaderIcons");
}

std::u16string HeaderIcons::HeaderIcon(std::int16_t ColumnIndex) {
    columns_.ensure_headers();
    return core_.parts.ListView1.header_tag(ColumnIndex);
}

void HeaderIcons::put_HeaderIcon(std::int16_t ColumnIndex, std::u16string_view key) {
    ListView& list = core_.parts.ListView1;
    const bool allowed = core_.site.user_mode() || core_.state.mbLoadingProperties;
    if (!allowed || !list.column_header_icons() || still_to_be_built(ColumnIndex)) {
        return;
    }
    columns_.ensure_headers();
    list.set_header_icon(ColumnIndex, key);
    list.set_header_tag(ColumnIndex, key);
    core_.property_changed(u"HeaderIcon");
}

// Loading assigns the icons of saved columns a second time, when their headers are there.
bool HeaderIcons::still_to_be_built(std::int16_t ColumnIndex) const {
    return core_.state.mbLoadingProperties && ColumnIndex > core_.parts.ListView1.header_count();
}

} // namespace vellora
