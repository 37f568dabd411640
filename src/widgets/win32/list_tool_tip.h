// The tool tip of the cell under the mouse. The platform's list knows tips for whole rows at best.
#pragma once

#include "widgets/list_rows.h"
#include "widgets/win32/handles.h"
#include "widgets/win32/list_window.h"

#include <optional>
#include <string>

namespace vellora::win32 {

class ListToolTip {
public:
    ListToolTip(const ListWindow& window, const ListRows& rows) : window_(window), rows_(rows) {}

    /// To be told every message of the list, before the window handles it.
    void watch(const WindowMessage& message);
    /// Answers the tip window when it asks for the text.
    std::optional<LRESULT> answer(const WindowMessage& message);

private:
    struct Cell {
        std::int32_t row = -1;
        std::int32_t column = -1;
        bool operator==(const Cell&) const = default;
    };

    Cell cell_at(LPARAM position) const;
    void move_to(const Cell& cell);
    void relay(const WindowMessage& message) const;
    void create();

    const ListWindow& window_;
    const ListRows& rows_;
    UniqueWindow tip_; // made when the mouse first meets a cell that has a tip
    Cell cell_;
    std::u16string text_;
};

} // namespace vellora::win32
