// Keeping a control alive over a call to code that may let go of it.
#pragma once

#include "com/ole.h"

namespace vellora::com {

/// References both the control and, where it is aggregated, the object around it. While the control is
/// already going it references nothing. A default-made one holds nothing.
class Hold {
public:
    Hold() = default;
    Hold(IUnknown* inner, IUnknown* controlling) : inner_(inner), controlling_(controlling) {}

private:
    ComPtr<IUnknown> inner_;
    ComPtr<IUnknown> controlling_;
};

} // namespace vellora::com
