// The controls on one window, whatever kind of window it is, and what the window owes them: their keys before
// anybody else takes them, the focus back, and an end before its own.
#pragma once

#include "control_site.h"
#include "form_focus.h"
#include "form_font.h"
#include "form_frame.h"

#include <string>
#include <vector>

#include <wrl/client.h>

namespace vellora::samples {

class Controls {
public:
    /// `mdi_frame` is the window around an MDI child.
    explicit Controls(HWND window, HWND mdi_frame = nullptr);
    Controls(const Controls&) = delete;
    Controls& operator=(const Controls&) = delete;
    ~Controls() { release(); }

    /// Takes a new control up and shows it. `place` in pixels; `saved` as for ControlSite::take().
    ControlSite& add(IUnknown* control, const std::wstring& name, const RECT& place, IPropertyBag* saved = nullptr);
    /// A site that is still empty, for hosts that take the steps themselves.
    ControlSite& reserve(const std::wstring& name, const RECT& place);
    /// Lets one control go.
    void remove(ControlSite& site);
    /// Lets all of them go; in WM_DESTROY at the latest.
    void release();

    /// Sites made from now on belong to a form designer, not to a running program.
    void design(bool designing) noexcept { surroundings_.running = !designing; }

    /// Whether one of them, or the dialog manager on Tab and the like, used up a message of the queue.
    bool takes(MSG& message) const;
    /// Hands them what the window hears about itself.
    void window_heard(UINT message, WPARAM wparam);
    /// No control has the user's attention any more.
    void deactivate_current() const { surroundings_.frame->deactivate_current(); }
    HFONT font() const noexcept { return font_.handle(); }

private:
    FormFont font_;
    FormFocus focus_;
    ControlSite::Surroundings surroundings_;
    std::vector<Microsoft::WRL::ComPtr<ControlSite>> sites_;
};

} // namespace vellora::samples
