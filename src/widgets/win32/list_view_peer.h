// The list of the drop-down as a window of the platform. The rows stand in the portable store; the parts put
// together here answer what the window asks, what the user does and what other programs send.
#pragma once

#include "widgets/list_view.h"
#include "widgets/win32/focus_tracker.h"
#include "widgets/win32/lifeline.h"
#include "widgets/win32/list_appearance.h"
#include "widgets/win32/list_caption_ends.h"
#include "widgets/win32/list_column_messages.h"
#include "widgets/win32/list_display.h"
#include "widgets/win32/list_header_icons.h"
#include "widgets/win32/list_header_mark.h"
#include "widgets/win32/list_input.h"
#include "widgets/win32/list_item_messages.h"
#include "widgets/win32/list_tool_tip.h"
#include "widgets/win32/notification_router.h"
#include "widgets/win32/window_widget.h"

namespace vellora::win32 {

class ListViewPeer final : public WindowWidget<ListView>,
                           private ListWindowClient,
                           private NotificationReceiver {
public:
    /// Created hidden and without size. The surface hands its WM_NOTIFY to `route_notification`, and goes on
    /// doing so while the list stands elsewhere. Tracker and comparison outlive the peer. Throws
    /// std::bad_alloc without a window.
    ListViewPeer(HWND surface, FocusTracker& focus, const TextCompare& compare);
    ~ListViewPeer() override;

    void move(const Bounds& bounds) override;
    void set_visible(bool visible) override;

    void listen(ListViewListener* listener) override { input_.listen(listener); }
    ListRows& rows() override { return rows_; }
    void refresh() override;
    void ensure_visible(std::int32_t row) override;
    float row_height() const override;

    std::int32_t header_count() const override { return headers_.count(); }
    void clear_headers() override;
    void add_header(std::u16string_view text) override;
    std::u16string header_text(std::int32_t column) const override { return headers_.text(column - 1); }
    void set_header_text(std::int32_t column, std::u16string_view text) override;
    float header_width(std::int32_t column) const override;
    void set_header_width(std::int32_t column, float width) override;
    std::u16string header_tag(std::int32_t column) const override { return headers_.tag(column - 1); }
    void set_header_tag(std::int32_t column, std::u16string_view tag) override;

    ImageListRef column_header_icons() const override { return header_icons_.list(); }
    void set_column_header_icons(const ImageListRef& icons) override;
    void set_header_icon(std::int32_t column, std::u16string_view key) override;
    void renew_header_icons() override { header_icons_.renew(); }

    std::int32_t marked_header() const override;
    void mark_header(std::int32_t column) override;

    bool hide_column_headers() const override;
    void set_hide_column_headers(bool hide) override;
    bool allow_column_reorder() const override;
    void set_allow_column_reorder(bool allow) override;
    bool check_boxes() const override;
    void set_check_boxes(bool show) override;
    bool grid_lines() const override;
    void set_grid_lines(bool show) override;

    FontRef font() const override { return font_.font(); }
    void set_font(const FontRef& font) override { font_.set(font); }
    PictureRef picture() const override { return appearance_.picture(); }
    void set_picture(const PictureRef& picture) override { appearance_.set_picture(picture); }
    OleColor fore_color() const override { return appearance_.fore_color(); }
    void set_fore_color(OleColor color) override { appearance_.set_fore_color(color); }
    OleColor back_color() const override { return appearance_.back_color(); }
    void set_back_color(OleColor color) override { appearance_.set_back_color(color); }

private:
    HWND widget_window() const override { return window_.handle(); }
    LRESULT list_message(WindowMessage message) override;
    LRESULT notified(NMHDR& header) override;

    void bring_up_to_date(const WindowMessage& message);
    std::optional<LRESULT> answer(const WindowMessage& message);
    LRESULT pass_on(const WindowMessage& message);
    void track_focus(const WindowMessage& message);
    void apply_font(HFONT font);

    FocusTracker& focus_;
    ListWindow window_;
    ListRows rows_;
    ListRowsMirror mirror_;
    ListHeaders headers_;
    ListHeaderIcons header_icons_;
    ListHeaderMark header_mark_;
    ListColumnWidths widths_;
    ListCaptionEnds caption_ends_;
    ListItemMessages item_messages_;
    ListColumnMessages column_messages_;
    ListDisplay display_;
    ListAppearance appearance_;
    ListInput input_;
    ListToolTip tool_tip_;
    FontInUse font_;
    Lifeline lifeline_;
};

} // namespace vellora::win32
