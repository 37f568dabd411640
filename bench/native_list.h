// The platform's own list in report view, filled the ordinary way with redrawing switched off. Its parent is
// a plain window that does nothing about what the list tells it.
#pragma once

#include "sample_rows.h"

#include <windows.h>

namespace vellora::bench {

class NativeList {
public:
    NativeList();
    ~NativeList();
    NativeList(const NativeList&) = delete;
    NativeList& operator=(const NativeList&) = delete;

    HWND window() const { return window_; }

    void add(SampleRows& rows, int count);
    void clear();
    /// Reads each text of the first rows; the number of units read.
    std::size_t read(int count);
    /// The first row whose text equals or, `partial`, begins with this one; -1 for none.
    int find(const std::wstring& text, bool partial);
    /// The first row with this text in a further column, which is read row by row; -1 for none.
    int find_in_column(const std::wstring& text, int column);

private:
    void set_text(int row, int column, std::wstring& text);

    HWND frame_;
    HWND window_;
};

} // namespace vellora::bench
