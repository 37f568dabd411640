// Quick activation: the host hands everything over in one call, the site, its ambient properties and its sinks, and
// gets everything back in it. The order is that of hosts of the .NET family: the quick call first, a new control
// by its stream, size, then activation.
//
//     quick_activation.exe [--check]
#include "hosting/bstr.h"
#include "hosting/control_factory.h"
#include "hosting/event_sink.h"
#include "hosting/failure.h"
#include "hosting/plain_form.h"
#include "hosting/sample.h"
#include "hosting/screen.h"
#include "hosting/text_array.h"
#include "hosting/user.h"

#include <string>

namespace vellora::samples {

namespace {

using Microsoft::WRL::ComPtr;

/// 0.01 mm, in which OLE measures.
LONG himetric(LONG pixels) {
    return MulDiv(pixels, 2540, resolution());
}

class QuickForm {
public:
    QuickForm() : form_(L"Vellora by quick activation", {320, 80}), control_(ControlFactory().create()) {
        ControlSite& site = form_.controls().reserve(L"Countries", place_);
        site.adopt(control_.Get());
        activate_quickly(site);
        initialize();
        set_extent();
        site.show();
        fill();
    }
    QuickForm(const QuickForm&) = delete;
    QuickForm& operator=(const QuickForm&) = delete;
    // The control may raise events until it is gone, and the sink needs this form.
    ~QuickForm() { form_.controls().release(); }

    PlainForm& form() noexcept { return form_; }
    _Vellora& control() const noexcept { return *control_.Get(); }
    const QACONTROL& answer() const noexcept { return answer_; }
    const std::wstring& last_event() const noexcept { return last_event_; }

    /// What the control was told of its size, in pixels.
    SIZE content_size() const {
        SIZEL extent{};
        check(quick_->GetContentExtent(&extent), L"Asking for the size");
        return {MulDiv(extent.cx, resolution(), 2540), MulDiv(extent.cy, resolution(), 2540)};
    }
    RECT place() const noexcept { return place_; }
    void stop_listening() const {
        ComPtr<IConnectionPointContainer> points;
        ComPtr<IConnectionPoint> point;
        check(control_.As(&points), L"Asking the control for its events");
        check(points->FindConnectionPoint(__uuidof(__Vellora), &point), L"Finding the control's events");
        check(point->Unadvise(answer_.dwEventCookie), L"Ending the connection of the quick call");
    }

private:
    void activate_quickly(ControlSite& site) {
        events_ = new EventSink([this](const Event& event) { last_event_ = event.text(); });
        QACONTAINER container{};
        container.cbSize = sizeof container;
        container.pClientSite = &site;
        container.pUnkEventSink = static_cast<IDispatch*>(events_.Get());
        container.dwAmbientFlags = QACONTAINER_MESSAGEREFLECT | QACONTAINER_SUPPORTSMNEMONICS;
        container.lcid = LOCALE_USER_DEFAULT;
        answer_.cbSize = sizeof answer_;
        check(control_.As(&quick_), L"Asking the control for quick activation");
        check(quick_->QuickActivate(&container, &answer_), L"Activating the control quickly");
        events_->learn_from(control_.Get());
    }
    void initialize() const {
        ComPtr<IPersistStreamInit> stream;
        check(control_.As(&stream), L"Asking the control for IPersistStreamInit");
        check(stream->InitNew(), L"Setting the control up");
    }
    void set_extent() const {
        SIZEL extent{himetric(place_.right - place_.left), himetric(place_.bottom - place_.top)};
        check(quick_->SetContentExtent(&extent), L"Setting the size");
    }
    void fill() const {
        // A new control shows its name.
        check(control_->put_Text(Bstr(L"").get()), L"Emptying the text field");
        const TextRows rows = {{L"New Zealand"}, {L"Peru"}, {L"Switzerland"}};
        check(control_->put_List(0, -3, TextArray(rows).get()), L"Filling the list");
    }

    RECT place_ = scaled(RECT{16, 16, 304, 38});
    PlainForm form_;
    ComPtr<_Vellora> control_;
    ComPtr<EventSink> events_;
    ComPtr<IQuickActivate> quick_;
    QACONTROL answer_{};
    std::wstring last_event_;
};

void play(QuickForm& quick, Steps& steps) {
    const User user(quick.form());
    steps.expect(L"the quick call connects the events", quick.answer().dwEventCookie != 0);
    steps.expect(L"and tells that the control stays active while it is visible",
                 (quick.answer().dwMiscStatus & OLEMISC_ACTIVATEWHENVISIBLE) != 0);
    const SIZE size = quick.content_size();
    steps.expect_same(L"the control has the width it was given", quick.place().right - quick.place().left, size.cx);
    steps.expect(L"it stands on the form", IsChild(quick.form().window(), window_of(quick.control())) &&
                                               IsWindowVisible(window_of(quick.control())));
    check(quick.control().put_ListIndex(2), L"Choosing a row");
    steps.expect_same(L"an event reaches the sink of the quick call", L"Click()", quick.last_event());
    check(quick.control().ShowList(), L"Opening the list");
    user.press(open_list(), VK_UP);
    user.press(open_list(), VK_RETURN);
    steps.expect_same(L"the user can work with it", L"Peru", text_of(quick.control()));
    steps.expect_same(L"and the closing list is told of", L"DropDown(vlClosed)", quick.last_event());
    quick.stop_listening();
    check(quick.control().put_ListIndex(0), L"Choosing a row");
    steps.expect_same(L"the cookie of the quick call ends the connection", L"DropDown(vlClosed)", quick.last_event());
}

void show(Steps* steps) {
    QuickForm quick;
    quick.form().show();
    if (steps)
        play(quick, *steps);
    else
        quick.form().run();
}

} // namespace

} // namespace vellora::samples

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    using namespace vellora::samples;
    return run_sample(L"Vellora by quick activation", [](const auto&, Steps* steps) { show(steps); });
}
