// Watching the form under an open drop-down; a test disturbs it.
#pragma once

#include "support/headless/desktop.h"
#include "widgets/form_watch.h"

namespace vellora::test {

class HeadlessFormWatch : public FormWatch {
public:
    void listen(FormWatchListener* listener) override { listener_ = listener; }
    void watch(WindowHandle form) override { watched_ = form; }
    void stop() override { watched_ = 0; }

    WindowHandle watched() const { return watched_; }
    /// The form moves, is minimised or goes: told only while it is watched.
    void disturb() {
        if (watched_ != 0 && listener_ != nullptr) {
            listener_->form_disturbed();
        }
    }

private:
    FormWatchListener* listener_ = nullptr;
    WindowHandle watched_ = 0;
};

} // namespace vellora::test
