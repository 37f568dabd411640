// A script host: runs a VBScript that puts controls on a form and handles their events.
//
//     script_host.exe [SCRIPT]      form.vbs beside the program when no script is named
//     script_host.exe --check       plays a user of form.vbs by itself
#include "hosting/environment.h"
#include "hosting/failure.h"
#include "hosting/sample.h"
#include "hosting/user.h"
#include "script_form.h"

#include <vector>

namespace vellora::samples {

namespace {

std::wstring usual_script() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, ARRAYSIZE(path));
    const std::wstring program = path;
    return program.substr(0, program.find_last_of(L'\\') + 1) + L"form.vbs";
}

/// Scripts are texts in the user's code page.
std::wstring read_script(const std::wstring& path) {
    const HANDLE file =
        CreateFileW(windows_path(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        throw Failure(L"The script " + path + L" cannot be read.");
    std::vector<char> bytes(GetFileSize(file, nullptr));
    DWORD count = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
    CloseHandle(file);
    std::wstring text(count, L'\0');
    text.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(count), text.data(), static_cast<int>(count))));
    return text;
}

VARIANT_BOOL checked(_Vellora& control, short row) {
    VARIANT_BOOL state = VARIANT_FALSE;
    check(control.get_Checked(row, &state), L"Reading a check box");
    return state;
}

/// As if there were such a row, which the handler asks the control for.
void call_with_a_missing_row(ScriptForm& form) {
    VARIANT arguments[3] = {}; // Cancel, State, ItemIndex
    for (VARIANT& argument : arguments)
        argument.vt = VT_I2;
    arguments[2].iVal = 99;
    DISPPARAMS parameters{arguments, nullptr, 3, 0};
    try {
        form.engine().call(L"Countries_ItemCheck", parameters);
    } catch (const Failure&) {
        // which the form has told the user
    }
}

void play(ScriptForm& form, Steps& steps) {
    _Vellora& countries = form.control(L"Countries");
    const User user(form.window());
    user.type(text_field_of(countries), L"pe");
    steps.expect_same(L"a handler of KeyPress makes capital letters", L"PE", text_of(countries).substr(0, 2));
    check(countries.ShowList(), L"Opening the list");
    steps.expect_same(L"a handler hears that the list opened", L"The list is open.", form.status());
    check(countries.put_Checked(0, VARIANT_TRUE), L"Checking a row");
    steps.expect(L"a handler of ItemCheck takes a check mark back", checked(countries, 0) == VARIANT_FALSE);
    steps.expect_same(L"the handler says so", L"New Zealand stays unchecked.", form.status());
    user.press(open_list(), VK_END);
    user.press(open_list(), VK_SPACE);
    steps.expect(L"other rows can be checked by the space bar", checked(countries, 2) == VARIANT_TRUE);
    check(countries.HideList(), L"Closing the list");
    user.wait();
    steps.expect_same(L"a handler may read the control", L"The list is closed; checked: 1", form.status());
    check(countries.put_ListIndex(1), L"Choosing a row");
    steps.expect_same(L"a handler hears of the choice", L"SWITZERLAND was chosen.", form.status());
    call_with_a_missing_row(form);
    steps.expect_same(L"the user is told of an error in a handler, with its line",
                      L"Line 39: Invalid property array index", form.status());
}

void host(const std::vector<std::wstring>& arguments, Steps* steps) {
    const Microsoft::WRL::ComPtr<ScriptForm> form(new ScriptForm);
    form->run(read_script(arguments.empty() ? usual_script() : arguments.front()));
    form->window().show();
    if (steps)
        play(*form.Get(), *steps);
    else
        form->window().run();
    form->close();
}

} // namespace

} // namespace vellora::samples

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    return vellora::samples::run_sample(L"Script host", vellora::samples::host);
}
