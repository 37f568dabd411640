// Painting a window at one stroke: what is drawn goes to the screen when the buffer ends.
#pragma once

#include "widgets/win32/handles.h"

namespace vellora::win32 {

/// Stands for the time of one WM_PAINT.
class PaintBuffer {
public:
    explicit PaintBuffer(HWND window);
    ~PaintBuffer();
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;

    HDC dc() const { return memory_.get(); }
    const RECT& client() const { return client_; }

private:
    HWND window_;
    PAINTSTRUCT paint_{};
    RECT client_{};
    UniqueBitmap bitmap_;
    UniqueMemoryDc memory_;
    HGDIOBJ old_bitmap_ = nullptr;
};

} // namespace vellora::win32
