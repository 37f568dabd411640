// The container of the system's own ATL library, used by name only: a window of the class AtlAxWin whose text is the
// control's ProgID makes and holds the control. The control must be registered.
//
//     atl.exe [--check]
#include "hosting/bstr.h"
#include "hosting/failure.h"
#include "hosting/plain_form.h"
#include "hosting/sample.h"
#include "hosting/screen.h"
#include "hosting/text_array.h"
#include "hosting/user.h"

#include <VelloraCTL.h>
#include <string>
#include <wrl/client.h>

namespace vellora::samples {

namespace {

using Microsoft::WRL::ComPtr;

/// The library's entries, found by name, so that no header of it is needed to build this.
class AtlLibrary {
public:
    AtlLibrary() : library_(LoadLibraryW(L"atl.dll")) {
        if (!library_)
            throw Failure(L"This system has no atl.dll.");
        find<BOOL()>("AtlAxWinInit")();
    }
    AtlLibrary(const AtlLibrary&) = delete;
    AtlLibrary& operator=(const AtlLibrary&) = delete;
    ~AtlLibrary() { FreeLibrary(library_); }

    /// The control in a window of the class AtlAxWin.
    ComPtr<_Vellora> control_in(HWND window) const {
        ComPtr<IUnknown> control;
        ComPtr<_Vellora> result;
        check(find<HRESULT(HWND, IUnknown**)>("AtlAxGetControl")(window, &control), L"Asking for the control");
        check(control.As(&result), L"Asking the control for its members");
        return result;
    }
    /// Makes any window the place of a control that exists already. The container that comes back is to be held.
    ComPtr<IUnknown> attach(IUnknown* control, HWND window) const {
        ComPtr<IUnknown> container;
        const auto entry = find<HRESULT(IUnknown*, HWND, IUnknown**)>("AtlAxAttachControl");
        check(entry(control, window, &container), L"Attaching the control to a window");
        return container;
    }

private:
    template <class Signature>
    struct Entry;
    template <class Result, class... Arguments>
    struct Entry<Result(Arguments...)> {
        using Type = Result(WINAPI*)(Arguments...);
    };
    template <class Signature>
    typename Entry<Signature>::Type find(const char* name) const {
        auto* const address = reinterpret_cast<void*>(GetProcAddress(library_, name));
        if (!address)
            throw Failure(L"This system's atl.dll lacks a function.");
        return reinterpret_cast<typename Entry<Signature>::Type>(address);
    }

    HMODULE library_;
};

HWND make_window(HWND form, const wchar_t* window_class, const wchar_t* text, const RECT& place) {
    return CreateWindowExW(WS_EX_CONTROLPARENT, window_class, text, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, place.left,
                           place.top, place.right - place.left, place.bottom - place.top, form, nullptr,
                           GetModuleHandleW(nullptr), nullptr);
}

void fill(_Vellora& control, const TextRows& rows) {
    // A new control shows its name.
    check(control.put_Text(Bstr(L"").get()), L"Emptying the text field");
    check(control.put_List(0, -3, TextArray(rows).get()), L"Filling the list");
}

/// One control that its window makes, and one that the program makes and attaches.
class AtlForm {
public:
    AtlForm() : form_(L"Vellora in the ATL container", {320, 100}) {
        by_name_window_ = make_window(form_.window(), L"AtlAxWin", L"VelloraCTL.Vellora", by_name_place_);
        if (!by_name_window_)
            throw Failure(L"VelloraCTL.ocx is not registered. This does it: regsvr32 VelloraCTL.ocx");
        by_name_ = atl_.control_in(by_name_window_);
        attached_window_ = make_window(form_.window(), L"Static", L"", attached_place_);
        check(CoCreateInstance(__uuidof(Vellora), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&attached_)),
              L"Creating a control");
        container_ = atl_.attach(attached_.Get(), attached_window_);
        fill(by_name(), {{L"New Zealand"}, {L"Peru"}, {L"Switzerland"}});
        fill(attached(), {{L"Bern"}, {L"Lima"}, {L"Wellington"}});
    }

    PlainForm& form() noexcept { return form_; }
    _Vellora& by_name() const noexcept { return *by_name_.Get(); }
    _Vellora& attached() const noexcept { return *attached_.Get(); }
    HWND by_name_window() const noexcept { return by_name_window_; }
    HWND attached_window() const noexcept { return attached_window_; }

private:
    const AtlLibrary atl_; // last to go, after the windows it serves
    const RECT by_name_place_ = scaled(RECT{16, 16, 304, 38});
    const RECT attached_place_ = scaled(RECT{16, 56, 304, 78});
    PlainForm form_;
    HWND by_name_window_ = nullptr;
    HWND attached_window_ = nullptr;
    ComPtr<_Vellora> by_name_;
    ComPtr<_Vellora> attached_;
    ComPtr<IUnknown> container_; // of the attached one
};

long width_of(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place.right - place.left;
}

void play(AtlForm& atl, Steps& steps) {
    const User user(atl.form());
    steps.expect(L"a window with the ProgID as its text makes the control",
                 IsChild(atl.by_name_window(), window_of(atl.by_name())));
    steps.expect_same(L"the control fills the window", width_of(atl.by_name_window()),
                      width_of(window_of(atl.by_name())));
    steps.expect(L"a control can be attached to any window", IsChild(atl.attached_window(), window_of(atl.attached())));
    user.type(text_field_of(atl.by_name()), L"lake");
    steps.expect_same(L"it can be typed into", L"lake", text_of(atl.by_name()));
    steps.expect_same(L"which does not touch the other one", L"", text_of(atl.attached()));
    check(atl.attached().ShowList(), L"Opening the list");
    user.press(open_list(), VK_END);
    user.press(open_list(), VK_RETURN);
    steps.expect_same(L"a row of its list can be chosen", L"Wellington", text_of(atl.attached()));
    DestroyWindow(atl.by_name_window());
    steps.expect_same(L"a control that is held outlives its window", L"lake", text_of(atl.by_name()));
}

void show(Steps* steps) {
    AtlForm atl;
    atl.form().show();
    if (steps)
        play(atl, *steps);
    else
        atl.form().run();
}

} // namespace

} // namespace vellora::samples

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    using namespace vellora::samples;
    return run_sample(L"Vellora in the ATL container", [](const auto&, Steps* steps) { show(steps); });
}
