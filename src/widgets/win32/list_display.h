// What the window asks its owner for while it paints and while the user types: texts, check marks and the row
// that begins with what was typed.
#pragma once

#include "widgets/list_rows.h"
#include "widgets/win32/list_window.h"

#include <optional>

namespace vellora::win32 {

/// The state bits of a row's check box.
UINT check_state(const ListRows& rows, std::int32_t row);

class ListDisplay {
public:
    explicit ListDisplay(const ListRows& rows) : rows_(rows) {}

    /// Nothing for a notification of another kind.
    std::optional<LRESULT> answer(NMHDR& header) const;

private:
    template <typename DisplayInfo>
    LRESULT display_info(DisplayInfo& info) const;
    static void point_at(std::u16string_view text, LVITEMW& item);
    static void point_at(std::u16string_view text, LVITEMA& item);

    const ListRows& rows_;
};

} // namespace vellora::win32
