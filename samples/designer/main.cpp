// Design mode with a property window. Choose a property, change its value and press Set; Run tries the control out,
// and pressed again goes back to the design. The property window asks everything of the control, so it would serve
// any other as well. Pages opens the control's own property pages (under Wine they do not apply what is changed).
//
//     designer.exe [--check]
#include "designer_form.h"
#include "hosting/failure.h"
#include "hosting/sample.h"
#include "hosting/user.h"

#include <algorithm>
#include <commctrl.h>

namespace vellora::samples {

namespace {

using Microsoft::WRL::ComPtr;

bool lists(const PropertyTable& table, const std::wstring& name) {
    return std::ranges::find(table.properties(), name, &Property::name) != table.properties().end();
}

ULONG page_count(_Vellora& control) {
    ComPtr<ISpecifyPropertyPages> provider;
    CAUUID pages{};
    check(control.QueryInterface(IID_PPV_ARGS(&provider)), L"Asking the control for its pages");
    check(provider->GetPages(&pages), L"Asking the control for its pages");
    CoTaskMemFree(pages.pElems);
    return pages.cElems;
}

void press_button(DesignerForm& designer, DesignerForm::Button button) {
    SendDlgItemMessageW(designer.form().window(), button, BM_CLICK, 0, 0);
}

void set(DesignerForm& designer, const wchar_t* property, const wchar_t* value) {
    designer.properties().choose(property);
    designer.properties().enter(value);
    press_button(designer, DesignerForm::set);
}

void play_properties(DesignerForm& designer, Steps& steps) {
    const PropertyTable& table = designer.table();
    steps.expect(L"the list has the properties that designers set", lists(table, L"GridLines"));
    steps.expect(L"and not those of a running program", !lists(table, L"ListIndex"));
    steps.expect_same(L"a property stands in its category", L"Appearance", table.find(L"GridLines").category);
    steps.expect_same(L"a value of an enumeration has a name", L"0 - vlNormal",
                      designer.properties().shown_value(L"ButtonStyle"));
    steps.expect_same(L"there are others to choose from", 2,
                      static_cast<long>(table.choices(table.find(L"ButtonStyle")).size()));
    set(designer, L"ButtonStyle", L"1 - vlToggle");
    steps.expect_same(L"choosing one sets it", L"1 - vlToggle", designer.properties().shown_value(L"ButtonStyle"));
    set(designer, L"BackColor", L"&H00C0FFFF");
    steps.expect_same(L"a colour can be typed", L"&H00C0FFFF", designer.properties().shown_value(L"BackColor"));
    set(designer, L"DropDownHeight", L"-1");
    steps.expect_same(L"a value that cannot be is refused in the control's words", L"Invalid property value",
                      designer.message());
    check(designer.control().put_GridLines(VARIANT_TRUE), L"Setting a property");
    steps.expect_same(L"a change by somebody else shows at once", L"True",
                      designer.properties().shown_value(L"GridLines"));
    steps.expect(L"nobody can type into a control that is being designed",
                 !IsWindowEnabled(window_of(designer.control())));
    steps.expect(L"the control has property pages", page_count(designer.control()) > 0);
}

void play_modes(DesignerForm& designer, const User& user, Steps& steps) {
    set(designer, L"CheckBoxes", L"True");
    press_button(designer, DesignerForm::save);
    set(designer, L"CheckBoxes", L"False");
    press_button(designer, DesignerForm::load);
    steps.expect_same(L"what was saved comes back", L"True", designer.properties().shown_value(L"CheckBoxes"));
    press_button(designer, DesignerForm::run);
    steps.expect_same(L"the running control has the designed settings", L"1 - vlToggle",
                      designer.properties().shown_value(L"ButtonStyle"));
    user.type(text_field_of(designer.control()), L"bern");
    steps.expect_same(L"and can be typed into", L"bern", text_of(designer.control()).substr(0, 4));
    set(designer, L"CheckBoxes", L"False");
    steps.expect_same(L"some of them cannot be changed any more", L"True",
                      designer.properties().shown_value(L"CheckBoxes"));
    set(designer, L"GridLines", L"False");
    steps.expect_same(L"others can", L"False", designer.properties().shown_value(L"GridLines"));
    press_button(designer, DesignerForm::run);
    steps.expect_same(L"the design is as it was before the run", L"True",
                      designer.properties().shown_value(L"GridLines"));
}

void design(Steps* steps) {
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    DesignerForm designer;
    designer.form().show();
    if (!steps)
        return designer.form().run();
    const User user(designer.form());
    play_properties(designer, *steps);
    play_modes(designer, user, *steps);
}

} // namespace

} // namespace vellora::samples

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    using namespace vellora::samples;
    return run_sample(L"Form designer", [](const auto&, Steps* steps) { design(steps); });
}
