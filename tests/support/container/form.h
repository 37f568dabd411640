// The host's form: a real top-level window, a dialog, or a child of an MDI frame. It remembers the caption
// messages that reach it and gives the focus back to its control when it is activated again.
#pragma once

#include <functional>
#include <string>
#include <vector>
#include <windows.h>

#include <oleidl.h>
#include <wrl/client.h>

namespace vellora::test {

class Form {
public:
    enum class Kind { plain, dialog, mdi_child };
    struct Look {
        Kind kind = Kind::plain;
        std::wstring title = L"Vellora form";
        RECT place{100, 100, 640, 500}; // on the screen
        bool visible = true;
        /// Without caption and out of the window manager's hands, which gives and takes the focus in its own
        /// time. Moving it later would hand it over. For tests that do not look at the screen.
        bool bare = false;
    };
    /// Sees every message of the form first.
    using Watcher = std::function<void(UINT message, WPARAM wparam, LPARAM lparam)>;

    Form() : Form(Look{}) {}
    explicit Form(const Look& look);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    ~Form();

    /// The form, 0 once it is destroyed; the MDI client and frame where there are such.
    HWND window() const noexcept { return window_; }
    HWND client() const noexcept { return client_; }
    HWND frame() const noexcept { return frame_ ? frame_ : window_; }
    bool is_mdi_child() const noexcept { return frame_ != nullptr; }
    void destroy();

    /// One line for each WM_NCACTIVATE: which window got it, wParam, lParam: "form 1 1".
    const std::vector<std::string>& caption_messages() const noexcept { return captions_; }
    void forget_caption_messages() { captions_.clear(); }
    /// Whether the caption was last told to look active.
    bool caption_active() const noexcept { return caption_active_; }
    void watch(Watcher watcher) { watcher_ = std::move(watcher); }

    /// The control that is UI-active sees the keys first.
    void set_active_object(IOleInPlaceActiveObject* object) { active_object_ = object; }
    IOleInPlaceActiveObject* active_object() const noexcept { return active_object_.Get(); }

    /// What the form's message loop does with a message before dispatching it.
    bool translate(MSG& message) const;
    /// Handles all messages that wait.
    void pump() const;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    static INT_PTR CALLBACK dialog_procedure(HWND window, UINT message, WPARAM wparam,
                                             LPARAM lparam) noexcept;
    void register_class() const;
    void create(const Look& look);
    void create_dialog(const Look& look);
    void create_mdi(const Look& look);
    void see(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    void keep_focus(UINT message, WPARAM wparam);
    void show(const Look& look) const;
    LRESULT by_default(HWND window, UINT message, WPARAM wparam, LPARAM lparam) const;

    HWND window_ = nullptr;
    HWND client_ = nullptr;
    HWND frame_ = nullptr;
    HWND focus_ = nullptr;
    Kind kind_ = Kind::plain;
    bool bare_ = false;
    bool caption_active_ = false;
    std::vector<std::string> captions_;
    Watcher watcher_;
    Microsoft::WRL::ComPtr<IOleInPlaceActiveObject> active_object_;
};

} // namespace vellora::test
