#include "columns/column_auto_size.h"

#include "columns/column_set.h"

namespace vellora {

namespace {

// LVSCW_AUTOSIZE and LVSCW_AUTOSIZE_USEHEADER of commctrl.h.
constexpr std::intptr_t width_of_contents = -1;
constexpr std::intptr_t width_of_contents_and_header = -2;

} // namespace

ColumnAutoSize::ColumnAutoSize(ControlCore& core, ColumnSet& columns) : core_(core), columns_(columns) {}

std::int32_t ColumnAutoSize::AutoSize() const { return core_.state.mlAutoSize; }

void ColumnAutoSize::put_AutoSize(std::int32_t setting) {
    core_.state.mlAutoSize = setting;
    core_.property_changed(u"AutoSize");
}

void ColumnAutoSize::AutoSizeNow(std::int32_t setting) {
    if (setting == vlNone || !core_.user32.window_rect(core_.surface.window())) {
        return;
    }
    columns_.ensure_headers();
    size(setting);
}

void ColumnAutoSize::size_for_opening() { size(core_.state.mlAutoSize); }

void ColumnAutoSize::size(std::int32_t setting) {
    if (setting == vlContents) {
        size_by_contents();
    } else if (setting == vlIncludeHeaders) {
        size_including_headers();
    }
}

void ColumnAutoSize::size_by_contents() {
    const std::int32_t count = core_.parts.ListView1.header_count();
    for (std::int32_t column = 0; column < count; ++column) {
        send_width(column, width_of_contents);
    }
}

void ColumnAutoSize::size_including_headers() {
    const std::int32_t count = core_.parts.ListView1.header_count();
    for (std::int32_t column = 0; column < count; ++column) {
        send_width(column, width_of_contents_and_header);
    }
    // The last column fills what the others leave, and only now is that settled.
    send_width(count - 1, width_of_contents_and_header);
}

void ColumnAutoSize::send_width(std::int32_t column_from_0, std::intptr_t code) {
    core_.user32.send_message(core_.parts.ListView1.window(), message::list_set_column_width,
                              static_cast<std::uintptr_t>(column_from_0), code);
}

} // namespace vellora
