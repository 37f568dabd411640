// The control from C++ by its type library: one window, one control. Members are called by their addresses through
// the header that is made from the interface description (widl here; #import or midl elsewhere), events come in
// through a small dispatch object.
//
//     cpp.exe [--check]
#include "box_events.h"
#include "hosting/bstr.h"
#include "hosting/control_factory.h"
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

class CountryForm {
public:
    CountryForm()
        : form_(L"Vellora from C++", {320, 120}), control_(ControlFactory().create()), events_(new BoxEvents) {
        form_.controls().add(control_.Get(), L"Countries", scaled(RECT{16, 16, 304, 38}));
        fill();
        listen();
    }
    CountryForm(const CountryForm&) = delete;
    CountryForm& operator=(const CountryForm&) = delete;
    ~CountryForm() { events_->stop(); }

    PlainForm& form() noexcept { return form_; }
    _Vellora& control() const noexcept { return *control_.Get(); }
    std::wstring title() const {
        wchar_t text[100] = L"";
        GetWindowTextW(form_.window(), text, ARRAYSIZE(text));
        return text;
    }

private:
    void fill() {
        check(control_->put_Columns(2), L"Setting the number of columns");
        check(control_->put_TextColumn(2), L"Choosing the text column");
        // A new control shows its name.
        check(control_->put_Text(Bstr(L"").get()), L"Emptying the text field");
        check(control_->put_AutoComplete(VARIANT_TRUE), L"Completing what is typed");
        check(control_->put_ColumnHeader(1, Bstr(L"Code").get()), L"Naming a column");
        check(control_->put_ColumnHeader(2, Bstr(L"Country").get()), L"Naming a column");
        const TextRows rows = {{L"NZ", L"New Zealand"}, {L"CH", L"Switzerland"}, {L"PE", L"Peru"}};
        // -3: the whole table at once, row by row.
        check(control_->put_List(0, -3, TextArray(rows).get()), L"Filling the list");
    }
    void listen() {
        events_->on_click = [this] { set_title(text_of(control()) + L" was chosen"); };
        events_->on_drop_down = [this](vlDropDownState state) {
            set_title(state == vlOpen ? L"The list is open" : L"The list is closed");
        };
        // No digits: a character that is made 0 is not typed.
        events_->on_key_press = [](short& character) {
            if (character >= L'0' && character <= L'9')
                character = 0;
        };
        events_->listen_to(control_.Get());
    }
    void set_title(const std::wstring& title) const { SetWindowTextW(form_.window(), title.c_str()); }

    PlainForm form_;
    ComPtr<_Vellora> control_;
    ComPtr<BoxEvents> events_;
};

void play(CountryForm& countries, Steps& steps) {
    const User user(countries.form());
    long rows = 0;
    check(countries.control().get_ListCount(&rows), L"Counting the rows");
    steps.expect_same(L"a table makes a row of each of its rows", 3, rows);
    user.type(text_field_of(countries.control()), L"1p2e3");
    steps.expect_same(L"a handler of KeyPress keeps digits out, and the rest is completed", L"Peru",
                      text_of(countries.control()));
    check(countries.control().ShowList(), L"Opening the list");
    user.wait();
    steps.expect_same(L"DropDown tells that the list opened", L"The list is open", countries.title());
    user.press(open_list(), VK_HOME);
    user.press(open_list(), VK_RETURN);
    steps.expect_same(L"Enter chooses a row and closes the list", L"New Zealand", text_of(countries.control()));
    steps.expect(L"the list is closed", open_list() == nullptr);
    check(countries.control().put_ListIndex(1), L"Choosing a row");
    steps.expect_same(L"Click tells of the choice", L"Switzerland was chosen", countries.title());
    steps.expect(L"a choice that does not exist fails", FAILED(countries.control().put_ListIndex(99)));
}

void show(Steps* steps) {
    CountryForm countries;
    countries.form().show();
    if (steps)
        play(countries, *steps);
    else
        countries.form().run();
}

} // namespace

} // namespace vellora::samples

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    using namespace vellora::samples;
    return run_sample(L"Vellora from C++", [](const auto&, Steps* steps) { show(steps); });
}
