// The margins of an edit field. They outlive a new font and a new width, with which the platform changes them.
#pragma once

#include "widgets/win32/edit_window.h"

#include <optional>

namespace vellora::win32 {

class EditMargins {
public:
    explicit EditMargins(const EditWindow& edit) : edit_(edit) {}

    /// Answers EM_SETMARGINS.
    LRESULT set(const EditMessage& message);
    /// Gives the field what was set last.
    void restore() const;

private:
    WORD limited(WORD margin) const;

    const EditWindow& edit_;
    std::optional<WORD> left_; // as EM_SETMARGINS brought them
    std::optional<WORD> right_;
};

} // namespace vellora::win32
