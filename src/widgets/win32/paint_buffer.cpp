#include "widgets/win32/paint_buffer.h"

namespace vellora::win32 {

PaintBuffer::PaintBuffer(HWND window) : window_(window) {
    const HDC screen = BeginPaint(window, &paint_);
    GetClientRect(window, &client_);
    bitmap_.reset(CreateCompatibleBitmap(screen, client_.right, client_.bottom));
    memory_.reset(CreateCompatibleDC(screen));
    old_bitmap_ = SelectObject(memory_.get(), bitmap_.get());
}

PaintBuffer::~PaintBuffer() {
    BitBlt(paint_.hdc, 0, 0, client_.right, client_.bottom, memory_.get(), 0, 0, SRCCOPY);
    SelectObject(memory_.get(), old_bitmap_);
    EndPaint(window_, &paint_);
}

} // namespace vellora::win32
