// A simulated window system: windows with handles, parents, places, styles and window procedures that can be
// replaced, one keyboard focus and one mouse capture. Messages are delivered at once, as calls.
#pragma once

#include "runtime/geometry.h"
#include "support/headless/journal.h"
#include "widgets/window_hook.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace vellora::test {

/// What stands behind a window: the answers of its own, unreplaced procedure.
class WindowOwner {
public:
    virtual std::intptr_t handle_message(std::uint32_t, std::uintptr_t, std::intptr_t) { return 0; }
    virtual void capture_lost() {}
    /// Style bits that follow from the contents, as those of the scroll bars do.
    virtual std::uint32_t content_style() const { return 0; }

protected:
    ~WindowOwner() = default;
};

/// Is told once a focus change is over, unless another one overtook it.
class FocusObserver {
public:
    virtual void focus_moved(WindowHandle from, WindowHandle to) = 0;

protected:
    ~FocusObserver() = default;
};

namespace procedure {
inline constexpr WindowProcedure own = 0x00401000;      // every window starts with this one
inline constexpr WindowProcedure replaced = 0x10002000; // the library's
} // namespace procedure

/// WM_SETFOCUS.
inline constexpr std::uint32_t got_focus_message = 0x0007;

class Desktop {
public:
    struct Window {
        std::string name;
        WindowHandle parent = 0;
        PixelRect rect; // in the parent's client area; on the screen without a parent
        std::uint32_t style = 0;
        bool visible = true;
        bool enabled = true;
        WindowProcedure procedure = procedure::own;
        WindowOwner* owner = nullptr;
    };

    explicit Desktop(Journal& journal) : journal_(journal) {}
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    Journal& journal() { return journal_; }

    WindowHandle create(Window window);
    /// Takes the children along. The focus goes to the nearest ancestor that stays.
    void destroy(WindowHandle window);
    bool exists(WindowHandle window) const { return windows_.count(window) != 0; }
    /// A window that does not exist fails the test; a spare one is handed out instead.
    Window& at(WindowHandle window);
    const Window& at(WindowHandle window) const;
    /// "list", "popup" ...; "none" for 0 and "gone" for a destroyed window.
    std::string name(WindowHandle window) const;
    std::size_t count(const std::string& name) const;
    PixelRect screen_rect(WindowHandle window) const;
    bool is_inside(WindowHandle window, WindowHandle ancestor) const;

    /// A focused window that is hidden gives the focus to its parent.
    void show(WindowHandle window, bool visible);
    WindowHandle focus() const { return focus_; }
    /// The old window hears WM_KILLFOCUS through its procedure, then the new one WM_SETFOCUS.
    void set_focus(WindowHandle window);
    void observe_focus(FocusObserver* observer) { observers_.push_back(observer); }
    void stop_observing(FocusObserver* observer) { std::erase(observers_, observer); }
    WindowHandle capture() const { return capture_; }
    void set_capture(WindowHandle window);

    std::intptr_t send(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                       std::intptr_t lparam);
    std::intptr_t call(WindowProcedure procedure, WindowHandle window, std::uint32_t message,
                       std::uintptr_t wparam, std::intptr_t lparam);
    void set_receiver(HookedMessages* receiver) { receiver_ = receiver; }

    PixelPoint cursor;

private:
    WindowHandle surviving_ancestor(WindowHandle window) const;
    void forget(WindowHandle window);

    Journal& journal_;
    std::map<WindowHandle, Window> windows_;
    mutable Window spare_;
    WindowHandle next_handle_ = 0x00010010;
    WindowHandle focus_ = 0;
    WindowHandle capture_ = 0;
    HookedMessages* receiver_ = nullptr;
    std::vector<FocusObserver*> observers_;
};

} // namespace vellora::test
