// The platform's own list in report view, filled the ordinary way with redrawing switched off.
#pragma once

#include "sample_rows.h"

#include <windows.h>

namespace vellora::bench {

class NativeList {
public:
    explicit NativeList(HWND parent);
    ~NativeList();
    NativeList(const NativeList&) = delete;
    NativeList& operator=(const NativeList&) = delete;

    void add(SampleRows& rows, int count);
    void clear();
    /// Reads each text of the first rows; the number of units read.
    std::size_t read(int count);

private:
    void set_text(int row, int column, std::wstring& text);

    HWND window_;
};

} // namespace vellora::bench
