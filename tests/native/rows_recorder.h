// Notes what rows report, in the order they report it.
#pragma once

#include "widgets/list_rows.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace vellora::test {

class RowsRecorder final : public RowsObserver {
public:
    explicit RowsRecorder(ListRows& rows) : rows_(rows) { rows_.observe(this); }
    ~RowsRecorder() { rows_.observe(nullptr); }
    RowsRecorder(const RowsRecorder&) = delete;
    RowsRecorder& operator=(const RowsRecorder&) = delete;

    void rows_changed() override { notes_.push_back("rows"); }
    void row_changed(std::int32_t row) override { notes_.push_back("row " + std::to_string(row)); }
    void selection_changed() override { notes_.push_back("selection " + std::to_string(rows_.selected())); }

    /// What was noted since the last call.
    std::vector<std::string> take() { return std::exchange(notes_, {}); }

private:
    ListRows& rows_;
    std::vector<std::string> notes_;
};

using Notes = std::vector<std::string>;

} // namespace vellora::test
