// How wide a column has to be for what stands in it. The rows are measured where they are kept, since the
// window would ask for every single one.
#pragma once

#include "widgets/column_measure.h"
#include "widgets/win32/list_headers.h"
#include "widgets/win32/text_measure.h"

#include <optional>

namespace vellora::win32 {

class ListColumnWidths {
public:
    ListColumnWidths(const ListWindow& window, const ListHeaders& headers, ListRows& rows);
    ~ListColumnWidths();
    ListColumnWidths(const ListColumnWidths&) = delete;
    ListColumnWidths& operator=(const ListColumnWidths&) = delete;

    /// Pixels, for a column that exists, counted from 0.
    int for_content(std::int32_t column);
    /// Content or caption, whichever is wider; the last column also takes what the others leave.
    int for_content_and_header(std::int32_t column);
    /// What the icon of a header takes beside the caption; 0 without one.
    int icon_width(std::int32_t column) const;
    /// Measures in the list's font.
    TextMeasure text_measure() const;
    /// To be called when the list has another font.
    void font_changed();

private:
    void keep_up() noexcept;
    int for_caption(std::int32_t column) const;
    int left_over(std::int32_t column) const;

    const ListWindow& window_;
    const ListHeaders& headers_;
    ListRows& rows_;
    ColumnMeasure measure_;
    mutable std::optional<bool> font_drawn_wider_; // found out when it is asked for
};

} // namespace vellora::win32
