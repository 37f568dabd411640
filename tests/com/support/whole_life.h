// A control's whole life in a host, from its creation to its last reference, as a list of what each step
// answered; and whether anything was left behind.
#pragma once

#include "com/support/host_test.h"

#include <functional>

namespace vellora::test {

/// How a host begins: new through InitNew, loaded from a bag, or with everything said in one call.
enum class Beginning { fresh, loaded, quick };

struct Life {
    /// `activate: 00000000`, `text: a`, and so on: what a user or program sees of each step.
    Lines outcome;
    /// What the control asked of its host.
    Lines calls;
    std::vector<IID> interfaces;
    /// One line for each thing that outlived the control; empty when all is well.
    Lines left;
};

/// Lives once. `prepare` may prescribe answers before the control is created.
Life live(Beginning beginning, const std::function<void(Site&)>& prepare = {});

/// All windows of this thread, those inside others too.
std::vector<HWND> windows_of_thread();

std::string hex(HRESULT result);

} // namespace vellora::test
