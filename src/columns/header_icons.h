// Icons of the column headers: the host's image list, and which of its images each header shows.
#pragma once

#include "control/core.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vellora {

class ColumnSet;

/// The list view keeps the keys with its headers, so headers that are built anew have lost theirs.
class HeaderIcons {
public:
    HeaderIcons(ControlCore& core, ColumnSet& columns) : core_(core), columns_(columns) {}

    /// Null for Nothing.
    ImageListRef Icons() const;
    /// Captions and widths of the headers stay as they are. A header keeps its key and shows the new list's
    /// image of that key, or none. Error 380 for an object that is no image list.
    void putref_Icons(const ImageListRef& icons);

    /// The key last assigned; empty for none. Error 35600 for a header that does not exist.
    std::u16string HeaderIcon(std::int16_t ColumnIndex);
    /// An empty key takes the icon away. Ignored in design mode and without an image list. Error 35600 for a
    /// header that does not exist, 35601 for a key that is not in the list.
    void put_HeaderIcon(std::int16_t ColumnIndex, std::u16string_view key);

private:
    bool still_to_be_built(std::int16_t ColumnIndex) const;

    ControlCore& core_;
    ColumnSet& columns_;
};

} // namespace vellora
