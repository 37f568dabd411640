// A plain dialog from a resource with the control among its fields: in the place of a static, in the right place of
// the Tab order, with Enter and Esc for whoever they are meant.
//
//     dialog.exe [--check]
#include "dialog.h"
#include "hosting/bstr.h"
#include "hosting/control_factory.h"
#include "hosting/controls.h"
#include "hosting/failure.h"
#include "hosting/sample.h"
#include "hosting/user.h"

#include <optional>
#include <string>

namespace vellora::samples {

namespace {

using Microsoft::WRL::ComPtr;

/// Where a child of a dialog lies, in pixels of the dialog's inside.
RECT place_of(HWND dialog, HWND child) {
    RECT place{};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

class Booking {
public:
    Booking() : country_(ControlFactory().create()) {
        CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_BOOKING), nullptr, procedure,
                           reinterpret_cast<LPARAM>(this));
        if (!window_)
            throw Failure(L"The dialog cannot be made.");
        place_country();
        // A new control shows its name.
        check(country_->put_Text(Bstr(L"").get()), L"Emptying the text field");
        check(country_->put_AutoComplete(VARIANT_TRUE), L"Completing what is typed");
        for (const wchar_t* country : {L"New Zealand", L"Norway", L"Peru", L"Switzerland"})
            add(country);
    }
    Booking(const Booking&) = delete;
    Booking& operator=(const Booking&) = delete;
    ~Booking() {
        controls_->release();
        if (window_)
            DestroyWindow(window_);
    }

    HWND item(int id) const { return GetDlgItem(window_, id); }
    _Vellora& country() const noexcept { return *country_.Get(); }
    /// Whether OK or Cancel ended the dialog, and which; 0 before.
    int answer() const noexcept { return answer_; }
    bool takes(MSG& message) const { return window_ && controls_->takes(message); }
    void show() const { ShowWindow(window_, SW_SHOWNORMAL); }

private:
    // The static goes, and the control follows in the order of windows, which is the Tab order, where it was.
    void place_country() {
        const HWND mark = item(IDC_COUNTRY);
        controls_->add(country_.Get(), L"Country", place_of(window_, mark));
        SetWindowPos(window_of(country()), mark, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        DestroyWindow(mark);
    }
    void add(const wchar_t* name) const {
        const Bstr text(name);
        VARIANT cell{};
        cell.vt = VT_BSTR;
        cell.bstrVal = text.get();
        check(country_->AddItem(cell, -1), L"Adding a row");
    }

    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
        if (message == WM_INITDIALOG) {
            SetWindowLongPtrW(window, DWLP_USER, lparam);
            return reinterpret_cast<Booking*>(lparam)->begin(window);
        }
        auto* booking = reinterpret_cast<Booking*>(GetWindowLongPtrW(window, DWLP_USER));
        return booking && booking->handle(message, wparam);
    }
    INT_PTR begin(HWND window) {
        window_ = window;
        controls_.emplace(window);
        return TRUE;
    }
    bool handle(UINT message, WPARAM wparam) {
        // Dialogs give the focus back by themselves.
        if (message != WM_SETFOCUS)
            controls_->window_heard(message, wparam);
        if (message == WM_COMMAND)
            on_command(LOWORD(wparam), HIWORD(wparam));
        else if (message == WM_NCDESTROY)
            window_ = nullptr;
        return message == WM_COMMAND;
    }
    void on_command(int id, int notice) {
        if (notice == EN_SETFOCUS && (id == IDC_NAME || id == IDC_NOTES))
            controls_->deactivate_current();
        if (id != IDOK && id != IDCANCEL)
            return;
        answer_ = id;
        ShowWindow(window_, SW_HIDE);
        PostQuitMessage(0);
    }

    ComPtr<_Vellora> country_;
    HWND window_ = nullptr;
    std::optional<Controls> controls_;
    int answer_ = 0;
};

void play(Booking& booking, Steps& steps) {
    const User user(booking);
    const HWND field = text_field_of(booking.country());
    SetFocus(booking.item(IDC_NAME));
    user.press(booking.item(IDC_NAME), VK_TAB);
    steps.expect(L"Tab goes from the name to the control", GetFocus() == field);
    user.type(field, L"sw");
    steps.expect_same(L"the control completes what is typed", L"Switzerland", text_of(booking.country()));
    user.press(field, VK_TAB);
    steps.expect(L"Tab goes on to the notes", GetFocus() == booking.item(IDC_NOTES));
    check(booking.country().ShowList(), L"Opening the list");
    user.wait();
    user.press(open_list(), VK_ESCAPE);
    steps.expect(L"Esc on the open list closes the list", open_list() == nullptr);
    steps.expect(L"and not the dialog", booking.answer() == 0);
    user.press(field, VK_RETURN);
    steps.expect(L"Enter in the field is OK", booking.answer() == IDOK);
}

void book(Steps* steps) {
    Booking booking;
    booking.show();
    if (steps)
        play(booking, *steps);
    else
        run_messages([&](MSG& message) { return booking.takes(message); });
}

} // namespace

} // namespace vellora::samples

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    using namespace vellora::samples;
    return run_sample(L"Booking", [](const auto&, Steps* steps) { book(steps); });
}
