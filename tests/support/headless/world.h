// What several controls on one form share: the journal, the desktop with its window functions, the module of
// the window-message hook, and a form with one other window on it.
#pragma once

#include "dropdown/modMessageHandler.h"
#include "dropdown/open_list.h"
#include "support/headless/desktop.h"
#include "support/headless/peer.h"
#include "support/headless/user32.h"
#include "support/headless/window_hook.h"

#include <functional>

namespace vellora::test {

struct World : private WindowOwner {
    World() {
        gbListOpen = false; // what a failed test left open is not this world's business
        mdi_frame = window("mdi frame", 0);
        mdi_client = window("mdi client", mdi_frame);
        form = window("form", mdi_client);
        other = window("other", form);
        desktop.at(other).owner = this;
    }
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    Journal journal;
    Screen screen;
    Desktop desktop{journal};
    HeadlessUser32 user32{desktop};
    HeadlessWindowHook hook{desktop};
    modMessageHandler message_module{hook};
    WindowHandle mdi_frame = 0;
    WindowHandle mdi_client = 0;
    WindowHandle form = 0;
    WindowHandle other = 0;

    /// A handler of the form for its other window.
    std::function<void()> when_other_loses_focus;

private:
    std::intptr_t handle_message(std::uint32_t message, std::uintptr_t, std::intptr_t) override {
        if (message == message::kill_focus && when_other_loses_focus) {
            when_other_loses_focus();
        }
        return 0;
    }
    WindowHandle window(const char* name, WindowHandle parent) {
        Desktop::Window made;
        made.name = name;
        made.parent = parent;
        return desktop.create(made);
    }
};

} // namespace vellora::test
