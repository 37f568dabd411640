// What the user does in a list, told to its listener: keys before the window sees them, clicks once the
// window has settled the selection, check boxes before the click that belongs to them.
#pragma once

#include "widgets/list_view.h"
#include "widgets/win32/lifeline.h"
#include "widgets/win32/list_rows_mirror.h"

#include <optional>

namespace vellora::win32 {

class ListInput {
public:
    ListInput(const ListWindow& window, ListRows& rows, const ListRowsMirror& mirror)
        : window_(window), rows_(rows), mirror_(mirror) {}

    void listen(ListViewListener* listener) { listener_ = listener; }

    /// Handles keys, characters and presses on check boxes. The result is the message's own when the window
    /// is not to see it; this object may have ended by then. Otherwise a listener may have changed the
    /// message.
    std::optional<LRESULT> take(WindowMessage& message);

    /// While the window works on a message, what it notifies is kept until `finish`.
    void begin() { ++depth_; }
    void note(const NMHDR& header);
    /// Tells the listener what came up; this object may have ended afterwards.
    void finish();

private:
    struct Noted {
        bool click = false;
        std::int32_t column = no_column;
        int depth = 0;
    };
    static constexpr std::int32_t no_column = -1;

    std::optional<LRESULT> key_down(WindowMessage& message);
    std::optional<LRESULT> character(WindowMessage& message);
    std::optional<LRESULT> press(const WindowMessage& message);
    std::int32_t check_box_at(LPARAM position) const;
    bool has_check_boxes() const { return window_.has_extended_style(LVS_EX_CHECKBOXES); }
    void toggle(std::int32_t row);
    void tell();

    const ListWindow& window_;
    ListRows& rows_;
    const ListRowsMirror& mirror_;
    ListViewListener* listener_ = nullptr;
    Noted noted_;
    int depth_ = 0;
    Lifeline lifeline_;
};

} // namespace vellora::win32
