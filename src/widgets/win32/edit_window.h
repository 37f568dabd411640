// The platform's own single-line edit field, with every message going to its client first.
#pragma once

#include "widgets/win32/handles.h"

#include <cstdint>

namespace vellora::win32 {

enum class TextAlignment { left = 0, right = 1, centered = 2 };

struct EditMessage {
    UINT id = 0;
    WPARAM wparam = 0;
    LPARAM lparam = 0;
};

/// May end the edit window while it works.
class EditWindowClient {
public:
    virtual LRESULT edit_message(const EditMessage& message) = 0;

protected:
    ~EditWindowClient() = default;
};

class EditWindow {
public:
    /// Created hidden and without size. Throws std::bad_alloc when the window cannot be made.
    EditWindow(HWND parent, TextAlignment alignment, EditWindowClient& client);
    ~EditWindow();
    EditWindow(const EditWindow&) = delete;
    EditWindow& operator=(const EditWindow&) = delete;

    /// Null once the window is destroyed, which its parent's end may bring about.
    HWND handle() const { return window_.get(); }
    LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
        return SendMessageW(window_.get(), message, wparam, lparam);
    }
    struct Selection {
        std::int32_t start = 0;
        std::int32_t end = 0;
        std::int32_t length() const { return end - start; }
    };
    Selection selection() const;
    /// How much fits in the place of the selection before the limit is reached.
    std::int32_t room() const;
    bool locked() const;
    /// What the platform does with a message; only while the client answers one.
    LRESULT pass_on(const EditMessage& message) const;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                                      DWORD_PTR edit) noexcept;
    LRESULT end(HWND window, const EditMessage& message);

    EditWindowClient& client_;
    UniqueWindow window_;
};

} // namespace vellora::win32
