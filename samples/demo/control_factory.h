// Where the controls come from.
#pragma once

#include <VelloraCTL.h>
#include <wrl/client.h>

namespace vellora::demo {

/// Takes the library whose path is in the environment variable VELLORA_OCX; without one, the library that is
/// registered. Throws a Failure when there is none.
class ControlFactory {
public:
    ControlFactory();
    /// A new control, not yet on any form.
    Microsoft::WRL::ComPtr<_Vellora> create() const;

private:
    Microsoft::WRL::ComPtr<IClassFactory> factory_;
};

} // namespace vellora::demo
