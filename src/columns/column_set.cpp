#include "columns/column_set.h"

#include "runtime/checked.h"
#include "runtime/host_error.h"

#include <cstddef>

namespace vellora {

namespace {

constexpr std::u16string_view invalid_index_text = u"Invalid Column ColumnIndex";
constexpr std::u16string_view invalid_count_text = u"Invalid Columns Value. Value must be between 1 and 50";
// ColumnWidth has always answered with this text, although it takes 50 columns like the others. Programs compare it.
constexpr std::u16string_view invalid_width_index_text = u"Invalid Columns Value. Value must be between 1 and 10";

// What a column gets that is shown again without a width to go back to; twips.
constexpr float width_of_reappearing_column = 1000;

constexpr bool is_column_number(std::int32_t number) { return number >= 1 && number <= maximum_columns; }

std::size_t slot_of(std::int32_t ColumnIndex) { return checked_slot(ColumnIndex, maximum_columns); }

} // namespace

ColumnSet::ColumnSet(ControlCore& core) : core_(core) {}

std::int16_t ColumnSet::Columns() const { return core_.state.miColumns; }

void ColumnSet::put_Columns(std::int16_t count) {
    ControlState& state = core_.state;
    if (!is_column_number(count)) {
        core_.raise(error_number::invalid_columns_value, invalid_count_text);
    }
    if (count == state.miColumns && core_.parts.ListView1.header_count() > 0) {
        return;
    }
    if (state.miColumns < count) {
        auto first_new = static_cast<std::int16_t>(state.miColumns + 1);
        subResetColumns(state, first_new);
    }
    core_.parts.ListView1.rows().clear();
    build_headers(count);
    state.miColumns = count;
    core_.property_changed(u"Columns");
}

void ColumnSet::build_headers(std::int16_t count) {
    ListView& list = core_.parts.ListView1;
    const float share = core_.site.extender_width() / static_cast<float>(count);
    list.clear_headers();
    for (std::int16_t column = 1; column <= count; ++column) {
        const std::size_t slot = slot_of(column);
        list.add_header(core_.state.masColumnHeader[slot]);
        const float width = core_.state.masngColumnWidth[slot];
        list.set_header_width(column, width == automatic_width ? share : width);
    }
}

void ColumnSet::ensure_headers() {
    if (core_.parts.ListView1.header_count() == 0) {
        build_headers(core_.state.miColumns);
    }
}

void ColumnSet::rebuild_headers() { build_headers(core_.state.miColumns); }

std::u16string ColumnSet::ColumnHeader(std::int16_t ColumnIndex) const {
    check_used_column(ColumnIndex);
    return core_.state.masColumnHeader[slot_of(ColumnIndex)];
}

void ColumnSet::put_ColumnHeader(std::int16_t ColumnIndex, std::u16string_view caption) {
    check_used_column(ColumnIndex);
    core_.state.masColumnHeader[slot_of(ColumnIndex)] = caption;
    ensure_headers();
    core_.parts.ListView1.set_header_text(ColumnIndex, caption);
    core_.property_changed(u"ColumnHeader");
}

float ColumnSet::ColumnWidth(std::int16_t ColumnIndex) {
    float& stored = core_.state.masngColumnWidth[slot_of(ColumnIndex)];
    ensure_headers();
    stored = core_.parts.ListView1.header_width(ColumnIndex);
    return stored;
}

void ColumnSet::put_ColumnWidth(std::int16_t ColumnIndex, float width) {
    if (!core_.site.user_mode()) {
        return;
    }
    if (!is_column_number(ColumnIndex)) {
        core_.raise(error_number::invalid_columns_value, invalid_width_index_text);
    }
    if (!(width >= 0) && width != automatic_width) {
        throw HostError(error_number::invalid_property_value);
    }
    float& stored = core_.state.masngColumnWidth[slot_of(ColumnIndex)];
    stored = width == automatic_width ? equal_share() : width;
    ensure_headers();
    core_.parts.ListView1.set_header_width(ColumnIndex, stored);
    stored = width;
    core_.property_changed(u"ColumnWidth");
}

float ColumnSet::equal_share() const {
    const std::int32_t scroll_bar = checked_multiply(
        std::int32_t{core_.state.miTwipsPerPixelX},
        static_cast<std::int32_t>(core_.user32.system_metric(system_metric::scroll_bar_thumb_width)));
    return (core_.live_text_box().bounds().width - static_cast<float>(scroll_bar)) /
           static_cast<float>(core_.state.miColumns);
}

bool ColumnSet::ColumnHidden(std::int16_t ColumnIndex) const {
    return core_.state.mabColumnHidden[slot_of(ColumnIndex)];
}

void ColumnSet::put_ColumnHidden(std::int16_t ColumnIndex, bool hidden) {
    if (!core_.site.user_mode()) {
        return;
    }
    check_column_number(ColumnIndex);
    if (core_.state.mbLoadingProperties) {
        return;
    }
    const std::size_t slot = slot_of(ColumnIndex);
    const bool was_hidden = core_.state.mabColumnHidden[slot];
    core_.state.mabColumnHidden[slot] = hidden;
    if (!hidden) {
        show_column(ColumnIndex, was_hidden);
    } else if (!was_hidden) {
        ensure_headers();
        core_.state.masngColumnWidth[slot] = core_.parts.ListView1.header_width(ColumnIndex);
    }
    core_.property_changed(u"ColumnHidden");
}

void ColumnSet::show_column(std::int16_t ColumnIndex, bool was_hidden) {
    float& stored = core_.state.masngColumnWidth[slot_of(ColumnIndex)];
    if (stored != automatic_width) {
        if (stored == 0) {
            stored = width_of_reappearing_column;
        }
        ensure_headers();
        core_.parts.ListView1.set_header_width(ColumnIndex, stored);
    } else if (was_hidden) {
        const RaisedFlag unreported(core_.state.mbLoadingProperties);
        put_ColumnWidth(ColumnIndex, automatic_width);
    }
}

bool ColumnSet::ColumnLocked(std::int16_t ColumnIndex) const {
    return core_.state.mabColumnLocked[slot_of(ColumnIndex)];
}

void ColumnSet::put_ColumnLocked(std::int16_t ColumnIndex, bool locked) {
    if (!core_.site.user_mode()) {
        return;
    }
    check_column_number(ColumnIndex);
    core_.state.mabColumnLocked[slot_of(ColumnIndex)] = locked;
    core_.property_changed(u"ColumnLocked");
}

bool ColumnSet::HideColumnHeaders() const { return core_.state.mbHideColumnHeaders; }

void ColumnSet::put_HideColumnHeaders(bool hide) {
    core_.state.mbHideColumnHeaders = hide;
    core_.parts.ListView1.set_hide_column_headers(hide);
    core_.property_changed(u"HideColumnHeaders");
}

void ColumnSet::collapse_hidden_columns() {
    for (std::int16_t column = 1; column <= core_.state.miColumns; ++column) {
        if (core_.state.mabColumnHidden[slot_of(column)]) {
            core_.parts.ListView1.set_header_width(column, 0);
        }
    }
}

void ColumnSet::check_column_number(std::int16_t ColumnIndex) const {
    if (!is_column_number(ColumnIndex)) {
        core_.raise(error_number::invalid_columns_value, invalid_count_text);
    }
}

void ColumnSet::check_used_column(std::int16_t ColumnIndex) const {
    if (ColumnIndex < 1 || ColumnIndex > core_.state.miColumns) {
        core_.raise(error_number::invalid_column_index, invalid_index_text);
    }
}

} // namespace vellora
