#include "form_layout.h"

#include "hosting/screen.h"

namespace vellora::samples {

namespace {

constexpr int margin = 14, column_gap = 20, row_gap = 12, label_gap = 4;

RECT at(int left, int top, int width, int height) {
    return {left, top, left + width, top + height};
}

} // namespace

FormLayout::FormLayout(SIZE client, int cell_count, const Metrics& metrics) {
    const int edge = scaled(margin), line = metrics.text_height + scaled(label_gap);
    fields_width = client.cx - 2 * edge;
    const int field_width = (fields_width - scaled(column_gap)) / 2;
    const int right_column = edge + fields_width - field_width;
    int top = edge;
    for (int i = 0; i < cell_count; ++i) {
        const bool right = i % 2 == 1;
        const int left = right ? right_column : edge;
        cells.push_back({at(left, top, field_width, metrics.text_height),
                         at(left, top + line, field_width, metrics.field_height)});
        if (right || i + 1 == cell_count)
            top += line + metrics.field_height + scaled(row_gap);
    }
    log_label = at(edge, top, fields_width, metrics.text_height);
    const int log_top = top + line;
    log = at(edge, log_top, fields_width, client.cy - metrics.status_height - edge / 2 - log_top);
}

SIZE usual_client() {
    return {scaled(760), scaled(480)};
}

SIZE smallest_client() {
    return {scaled(520), scaled(360)};
}

} // namespace vellora::samples
