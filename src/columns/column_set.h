// The columns: how many, with what captions and widths, which of them hidden or locked.
#pragma once

#include "control/core.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vellora {

/// The per-column arrays of the state record are the master copy; the list view's headers are built from them. A new
/// instance builds them on first need. Column numbers are 1-based, widths twips.
class ColumnSet {
public:
    explicit ColumnSet(ControlCore& core);

    std::int16_t Columns() const;
    /// Rebuilds the headers and empties the list, unless the count is the present one and headers exist. Error
    /// 0x800405F1 outside 1 to 50.
    void put_Columns(std::int16_t count);

    /// Error 0x800405F0 outside 1 to Columns.
    std::u16string ColumnHeader(std::int16_t ColumnIndex) const;
    void put_ColumnHeader(std::int16_t ColumnIndex, std::u16string_view caption);

    /// Reading stores the width the header has now, so that an automatic width or one the user dragged becomes the
    /// column's own. Error 9 outside 1 to 50, 35600 above the last header.
    float ColumnWidth(std::int16_t ColumnIndex);
    /// -1 gives the column an equal share of the text field and keeps it automatic. Ignored in design mode. Error
    /// 0x800405F1 outside 1 to 50, 35600 above the last header, 380 for another negative width.
    void put_ColumnWidth(std::int16_t ColumnIndex, float width);

    /// Error 9 outside 1 to 50.
    bool ColumnHidden(std::int16_t ColumnIndex) const;
    /// A hidden column loses its width at the next opening and gets it back when it is shown again. Ignored in design
    /// mode and while loading. Error 0x800405F1 outside 1 to 50.
    void put_ColumnHidden(std::int16_t ColumnIndex, bool hidden);

    /// Error 9 outside 1 to 50.
    bool ColumnLocked(std::int16_t ColumnIndex) const;
    /// The user cannot drag the divider of a locked column. Ignored in design mode. Error 0x800405F1 outside 1 to 50.
    void put_ColumnLocked(std::int16_t ColumnIndex, bool locked);

    bool HideColumnHeaders() const;
    void put_HideColumnHeaders(bool hide);

    /// Builds the headers of an instance that has none yet.
    void ensure_headers();
    /// Builds the headers anew, for captions and widths that changed beside the setters.
    void rebuild_headers();
    /// Takes the width of every hidden column away.
    void collapse_hidden_columns();

private:
    void build_headers(std::int16_t count);
    void check_column_number(std::int16_t ColumnIndex) const;
    void check_used_column(std::int16_t ColumnIndex) const;
    float equal_share() const;
    void show_column(std::int16_t ColumnIndex, bool was_hidden);

    ControlCore& core_;
};

} // namespace vellora
