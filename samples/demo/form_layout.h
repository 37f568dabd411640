// Where everything on the form goes: labelled fields in two columns, the log of events below them.
#pragma once

#include <vector>
#include <windows.h>

namespace vellora::samples {

struct FormLayout {
    struct Cell {
        RECT label;
        RECT field;
    };
    /// Pixels.
    struct Metrics {
        int text_height;
        int field_height;
        int status_height;
    };

    FormLayout(SIZE client, int cell_count, const Metrics& metrics);

    std::vector<Cell> cells; // left, right, next row
    RECT log_label;
    RECT log;
    /// From the left edge of the left fields to the right edge of the right ones.
    int fields_width;
};

/// The client area of the form as it opens, and the smallest in which everything has room; pixels.
SIZE usual_client();
SIZE smallest_client();

} // namespace vellora::samples
