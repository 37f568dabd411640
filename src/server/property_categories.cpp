#include "server/property_categories.h"

namespace vellora::server {

namespace {

using com::PropertyCategory;

std::optional<PropertyCategory> category_of_shared_member(DISPID property) noexcept {
    switch (property) {
    case DISPID_VALUE: // Text
        return PropertyCategory::text;
    case DISPID_FONT:
        return PropertyCategory::font;
    case DISPID_ENABLED:
        return PropertyCategory::behavior;
    case DISPID_BACKCOLOR:
    case DISPID_FORECOLOR:
    case DISPID_PICTURE:
        return PropertyCategory::appearance;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<PropertyCategory> property_category(DISPID property) noexcept {
    switch (property / 100) {
    case 1: // the control itself
        return PropertyCategory::appearance;
    case 2: // items
    case 3: // columns
        return PropertyCategory::list;
    case 4: // the drop-down window
        return PropertyCategory::position;
    case 5: // the text field
        return PropertyCategory::text;
    default:
        return category_of_shared_member(property);
    }
}

} // namespace vellora::server
