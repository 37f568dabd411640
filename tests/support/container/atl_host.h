// The second container: the ATL-style one that comes with the platform. It initialises a control before
// giving it a site, has no ambient properties and leaves many site methods out.
#pragma once

#include <windows.h>

#include <unknwn.h>
#include <wrl/client.h>

namespace vellora::test {

class AtlHost {
public:
    /// A child window of the parent with the control in it; pixels. Throws CallFailed when it does not take
    /// the control.
    AtlHost(HWND parent, const RECT& place, IUnknown* control);
    /// The same for a registered class, which the host creates itself.
    AtlHost(HWND parent, const RECT& place, const wchar_t* program_id);
    AtlHost(const AtlHost&) = delete;
    AtlHost& operator=(const AtlHost&) = delete;
    ~AtlHost();

    HWND window() const noexcept { return window_; }
    IUnknown* control() const noexcept { return control_.Get(); }
    void move(const RECT& place);
    /// Ends the host's window; the control may be held by somebody else.
    void destroy();

private:
    void create_window(HWND parent, const RECT& place);

    HWND window_ = nullptr;
    Microsoft::WRL::ComPtr<IUnknown> host_;
    Microsoft::WRL::ComPtr<IUnknown> control_;
};

} // namespace vellora::test
