// The ends of captions that a header cuts off. A header that cuts each caption where its measured extent ends takes
// something off the last letters in a font that is drawn wider than it is measured; that is added when the header has
// painted.
#pragma once

#include "widgets/win32/list_column_widths.h"
#include "widgets/win32/text_measure.h"

#include <commctrl.h>

#include <optional>

namespace vellora::win32 {

class ListCaptionEnds {
public:
    ListCaptionEnds(const ListWindow& window, const ListHeaders& headers, const ListColumnWidths& widths)
        : window_(window), headers_(headers), widths_(widths) {}

    /// The answer to what the header tells about its painting; nothing for any other message. It is never 0 for a
    /// header that has painted: whoever watches the list hands on again what is answered by 0, and what is drawn twice
    /// is darker, or gone.
    std::optional<LRESULT> answer(const WindowMessage& message);

private:
    void note(const NMCUSTOMDRAW& drawing);
    void complete(const NMCUSTOMDRAW& drawing) const;
    void complete(HDC dc, std::int32_t column, const TextMeasure& measure) const;
    RECT text_place(HDC dc, std::int32_t column) const;

    const ListWindow& window_;
    const ListHeaders& headers_;
    const ListColumnWidths& widths_;
    std::int32_t pressed_ = -1; // the column whose header is drawn held down
};

} // namespace vellora::win32
