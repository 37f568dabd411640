#include "items/check_boxes.h"

#include "runtime/checked.h"
#include "runtime/host_error.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

namespace vellora {

CheckBoxes::CheckBoxes(ControlCore& core) : core_(core) {}

bool CheckBoxes::ShowsCheckBoxes() const { return core_.state.mbCheckBoxes; }

void CheckBoxes::put_CheckBoxes(bool show) {
    if (core_.site.user_mode() && !core_.state.mbLoadingProperties) {
        core_.raise(error_number::set_not_supported_at_run_time);
    }
    core_.state.mbCheckBoxes = show;
    core_.parts.ListView1.set_check_boxes(show);
    core_.property_changed(u"CheckBoxes");
}

bool CheckBoxes::Checked(std::int16_t ItemIndex) const {
    return core_.parts.ListView1.rows().checked(ItemIndex);
}

void CheckBoxes::put_Checked(std::int16_t ItemIndex, bool checked) {
    core_.parts.ListView1.rows().set_checked(ItemIndex, checked);
    subItemCheck(ItemIndex);
}

void CheckBoxes::subItemCheck(std::int32_t row) {
    ListRows& rows = core_.parts.ListView1.rows();
    const RowRef item = rows.ref(row);
    bool cancel = false;
    core_.events.item_check(to_integer(row), rows.checked(row), cancel);
    const std::int32_t row_now = rows.position(item);
    if (cancel && row_now >= 0) {
        rows.set_checked(row_now, !rows.checked(row_now));
    }
}

void CheckBoxes::list_item_checked(std::int32_t row) {
    if (handling_check_) {
        return;
    }
    const RaisedFlag handling(handling_check_);
    core_.state.mbIgnoreListClick = true;
    subItemCheck(row);
}

std::int16_t CheckBoxes::CheckedCount() const {
    const ListRows& rows = core_.parts.ListView1.rows();
    std::int32_t count = 0;
    for (std::int32_t row = 0; row < rows.count(); ++row) {
        count += rows.checked(row) ? 1 : 0;
    }
    return static_cast<std::int16_t>(std::min<std::int32_t>(count, std::numeric_limits<std::int16_t>::max()));
}

VariantResult CheckBoxes::CheckedItems() const {
    const ListRows& rows = core_.parts.ListView1.rows();
    std::vector<std::optional<std::int32_t>> items;
    for (std::int32_t row = 0; row < rows.count(); ++row) {
        if (rows.checked(row)) {
            items.emplace_back(row);
        }
    }
    if (items.empty()) {
        items.emplace_back(std::nullopt);
    }
    return items;
}

} // namespace vellora
