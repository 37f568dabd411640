// Messages about columns that other programs, and the list's own header, send to the window.
#pragma once

#include "widgets/win32/list_column_widths.h"
#include "widgets/win32/list_headers.h"
#include "widgets/win32/list_rows_mirror.h"

#include <optional>

namespace vellora::win32 {

class ListColumnMessages {
public:
    ListColumnMessages(const ListWindow& window, ListHeaders& headers, ListColumnWidths& widths,
                       ListRowsMirror& mirror)
        : window_(window), headers_(headers), widths_(widths), mirror_(mirror) {}

    /// Nothing for a message that the window answers itself.
    std::optional<LRESULT> answer(const WindowMessage& message);

private:
    template <typename Column>
    LRESULT get_column(const WindowMessage& message) const;
    template <typename Column>
    LRESULT insert_column(const WindowMessage& message);
    template <typename Column>
    LRESULT set_column(const WindowMessage& message);
    LRESULT delete_column(const WindowMessage& message);
    LRESULT set_width(const WindowMessage& message);
    LRESULT set_order(const WindowMessage& message) const;
    LRESULT get_order(const WindowMessage& message) const;
    std::optional<LRESULT> header_notification(const NMHDR* notification) const;
    bool has_column(std::int32_t column) const { return column >= 0 && column < headers_.count(); }

    const ListWindow& window_;
    ListHeaders& headers_;
    ListColumnWidths& widths_;
    ListRowsMirror& mirror_;
};

} // namespace vellora::win32
