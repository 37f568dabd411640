// Check boxes of the rows: reading, setting, counting, and the event that may cancel a change.
#pragma once

#include "control/core.h"
#include "runtime/variant.h"

#include <cstdint>

namespace vellora {

class CheckBoxes {
public:
    explicit CheckBoxes(ControlCore& core);

    bool ShowsCheckBoxes() const;
    /// Error 382 at run time.
    void put_CheckBoxes(bool show);

    /// 0-based row; 35600 for one that is not there.
    bool Checked(std::int16_t ItemIndex) const;
    /// Raises ItemCheck like a click on the box, and can be cancelled like one.
    void put_Checked(std::int16_t ItemIndex, bool checked);

    /// An Integer: 32767 also stands for more.
    std::int16_t CheckedCount() const;
    /// The checked rows' indexes; one empty element when there are none.
    VariantResult CheckedItems() const;

    /// The user changed a row's box.
    void list_item_checked(std::int32_t row);

private:
    void subItemCheck(std::int32_t row);

    ControlCore& core_;
    bool handling_check_ = false;
};

} // namespace vellora
