// What the parts of one control's site share.
#pragma once

#include "support/container/call_log.h"

#include <string>
#include <vector>
#include <windows.h>

#include <unknwn.h>
#include <wrl/client.h>

namespace vellora::test {

class Form;

struct SiteState {
    IUnknown* identity = nullptr; // the site itself, whose reference count all parts use
    Form* form = nullptr;         // null once the form is gone
    std::wstring name;            // the control's name on the form
    RECT place{};                 // pixels, relative to the form's client area
    CallLog log;
    /// Whether the control gets the size that it asks for.
    bool grants_sizes = true;
    /// Whether there is an extender, and whether the extender has a parent.
    bool has_extender = true;
    bool extender_has_parent = true;
    /// The interfaces that were asked of the site, and those it does not own up to.
    std::vector<IID> asked;
    std::vector<IID> withheld;
    /// The properties whose change the control announced, by name.
    std::vector<std::string> changed;
    /// Nothing before the control is created and after it is destroyed.
    Microsoft::WRL::ComPtr<IUnknown> control;
};

/// Twips per pixel of the screen.
SIZE twips_per_pixel();

} // namespace vellora::test
