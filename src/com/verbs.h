// What a container has the control do: show itself, be worked with, hide, close.
#pragma once

#include "com/activation.h"

namespace vellora::com {

/// OLEOBJ_S_INVALIDVERB for a positive verb it does not know, which is done as the primary one;
/// E_NOTIMPL for a negative one.
HRESULT do_verb(ControlHost& host, LONG verb, const Activation::Proposal& proposal);
void close(ControlHost& host, DWORD save_option);

} // namespace vellora::com
