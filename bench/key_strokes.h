// Keys typed into an edit field, be it the control's or the platform's own.
#pragma once

#include <windows.h>

#include <string>

namespace vellora::bench {

/// An edit field of the platform on a form.
class NativeEdit {
public:
    explicit NativeEdit(HWND form);
    ~NativeEdit() { DestroyWindow(window_); }
    NativeEdit(const NativeEdit&) = delete;
    NativeEdit& operator=(const NativeEdit&) = delete;

    HWND window() const { return window_; }

private:
    HWND window_;
};

/// Gives the field the focus and this text with the caret behind it, all of it painted.
void be_about_to_type(HWND field, const std::wstring& text);
/// A key down, its character and the key up, with everything painted that follows from it.
void type(HWND field, wchar_t character);
/// The same in a field that does not complete by itself: right after the character the text is replaced by the whole
/// text, and what was not typed is selected, with the messages that any completion has to send.
void type_and_complete(HWND field, wchar_t character, const std::wstring& whole);

} // namespace vellora::bench
