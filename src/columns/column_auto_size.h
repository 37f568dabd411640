// Columns as wide as what stands in them: at each opening (AutoSize) or once (AutoSizeNow).
#pragma once

#include "control/core.h"

#include <cstdint>

namespace vellora {

class ColumnSet;

/// The list view measures; every header takes part, hidden and locked ones too.
class ColumnAutoSize {
public:
    ColumnAutoSize(ControlCore& core, ColumnSet& columns);

    std::int32_t AutoSize() const;
    /// Kept as given; values other than vlContents and vlIncludeHeaders size nothing.
    void put_AutoSize(std::int32_t setting);
    /// Sizes once without changing AutoSize. A hidden column shows until the next opening.
    void AutoSizeNow(std::int32_t setting);

    /// What an opening does: as AutoSize says.
    void size_for_opening();

private:
    void size(std::int32_t setting);
    void size_by_contents();
    void size_including_headers();
    void send_width(std::int32_t column_from_0, std::intptr_t code);

    ControlCore& core_;
    ColumnSet& columns_;
};

} // namespace vellora
