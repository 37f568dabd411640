// Where the controls come from.
#pragma once

#include <VelloraCTL.h>
#include <wrl/client.h>

namespace vellora::samples {

/// Takes the library whose path is in the environment variable VELLORA_OCX; without one, the library that is
/// registered. Throws a Failure when there is none.
class ControlFactory {
public:
    ControlFactory();
    /// A new control, not yet on any form.
    Microsoft::WRL::ComPtr<_Vellora> create() const;
    /// One that becomes part of the object `outer`: what comes back is the control's inner identity, which only
    /// the outer object holds.
    Microsoft::WRL::ComPtr<IUnknown> create_inside(IUnknown* outer) const;

private:
    Microsoft::WRL::ComPtr<IClassFactory> factory_;
};

} // namespace vellora::samples
