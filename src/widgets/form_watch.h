// Watches the form under an open drop-down, which floats and so would stay behind when the form goes.
#pragma once

#include "runtime/geometry.h"

namespace vellora {

class FormWatchListener {
public:
    /// The form moved, changed its size, was minimised, hidden, disabled or is being destroyed.
    virtual void form_disturbed() = 0;

protected:
    ~FormWatchListener() = default;
};

class FormWatch {
public:
    virtual ~FormWatch() = default;

    virtual void listen(FormWatchListener* listener) = 0;
    /// Watches one form and the windows it stands in, until the next `watch` or `stop`. 0 watches nothing.
    virtual void watch(WindowHandle form) = 0;
    virtual void stop() = 0;
};

} // namespace vellora
