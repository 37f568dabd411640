// Members called by hand, and a run of the form with its events.
#include "call_text.h"
#include "check.h"
#include "commands.h"
#include "hosting/failure.h"

namespace vellora::samples {

namespace {

std::wstring call(ContainerWindow& container, const wchar_t* member, std::initializer_list<const wchar_t*> arguments,
                  bool sets = false) {
    MethodsBox& methods = container.methods();
    if (!methods.choose(member))
        return L"there is no such member";
    std::size_t index = 0;
    for (const wchar_t* const argument : arguments)
        methods.enter(index++, argument);
    methods.call(sets);
    return methods.result();
}

std::wstring again(const wchar_t* text) {
    Variant value = value_of_text(text, VT_VARIANT);
    return text_of_value(*value.get());
}

_Vellora& first_control(ContainerWindow& container) {
    Microsoft::WRL::ComPtr<_Vellora> control;
    container.surface().controls().front()->control()->QueryInterface(IID_PPV_ARGS(&control));
    return *control.Get(); // the form holds it
}

} // namespace

void check_calls(ContainerWindow& container, Steps& steps) {
    container.surface().choose(container.surface().controls().front().get());
    steps.expect_same(L"a row of texts is an argument", L"Done",
                      call(container, L"AddItem", {LR"({"A4", "210", "297"})"}));
    steps.expect_same(L"a property is read by row and column", LR"("210")", call(container, L"List", {L"0", L"2"}));
    steps.expect_same(L"and set", L"Done", call(container, L"List", {L"0", L"2", L"211"}, true));
    steps.expect_same(L"a missing argument is the control's own", LR"("A4")", call(container, L"List", {L"0", L""}));
    steps.expect_same(L"a whole row comes as an array", LR"({"A4", "211", "297"})",
                      call(container, L"List", {L"0", L"-2"}));
    steps.expect_same(L"an error shows its number and its words", L"Error 381: Invalid property array index",
                      call(container, L"ItemData", {L"7"}));
    steps.expect_same(L"a text that is no number is not passed on", LR"("x" is not a value that can be passed there.)",
                      call(container, L"ItemData", {L"x"}));
    steps.expect_same(L"what a grid does not list can be read here", L"1", call(container, L"ListCount", {}));
    container.methods().choose(L"FindItem");
    steps.expect(L"the values of an enumeration are shown",
                 says(container.methods().result(), L"FindOptions: vlWholeWord = 0, vlPartialWord = 1"));
    steps.expect_same(L"and may be typed by name", L"0",
                      call(container, L"FindItem", {L"a", L"-1", L"", L"vlPartialWord"}));
    steps.expect_same(L"a table is typed as it is shown", L"{{1, True}, {\"a, \"b\"\", 2.5}}",
                      again(L"{ {1, true}, {\"a, \"\"b\"\"\", 2.5} }"));
    steps.expect_same(L"a table has no tables for rows",
                      L"The rows of a table have as many cells each, and are no tables themselves.",
                      call(container, L"AddItem", {L"{{{1, 2}, {3, 4}}}"}));
    steps.expect_same(L"arrays in arrays come to an end", L"An array has arrays in it 8 deep at most.",
                      call(container, L"AddItem", {std::wstring(28000, L'{').c_str()}));
    call(container, L"Clear", {});
}

void check_run(ContainerWindow& container, const User& user, Steps& steps) {
    FormSurface& surface = container.surface();
    SendMessageW(container.window(), WM_COMMAND, ID_VIEW_RUN, 0);
    steps.expect(L"F5 runs the form", surface.running());
    steps.expect_same(L"the running control has the designed settings", L"1 - vlToggle",
                      container.grid().shown_value(L"ButtonStyle"));
    SendMessageW(container.window(), WM_COMMAND, ID_VIEW_FILL, 0);
    steps.expect_same(L"its list gets some rows to look at", L"11", call(container, L"ListCount", {}));
    const HWND field = text_field_of(first_control(container));
    SetFocus(field);
    user.press(field, VK_F4);
    steps.expect(L"F4 opens the list", open_list() != nullptr);
    for (const wchar_t* const step : {L"F6 goes to its headers", L"and back to its rows"}) {
        user.press(open_list(), VK_F6);
        steps.expect(step, open_list() != nullptr);
    }
    user.press(open_list(), VK_DOWN);
    user.press(open_list(), VK_RETURN);
    const std::wstring log = container.log().lines();
    steps.expect(L"the log has events with the names of their arguments", says(log, L"DropDown(State = vlOpen)"));
    steps.expect(L"and the choice of a row", says(log, L"Click()"));
    user.type(field, L"x");
    steps.expect(L"a key has both of its arguments",
                 says(container.log().lines(), L"KeyDown(KeyCode = 88, Shift = 0)"));
    SendMessageW(container.window(), WM_COMMAND, ID_VIEW_CLEAR_LOG, 0);
    steps.expect_same(L"the log can be emptied", L"", container.log().lines());
    check(first_control(container).put_GridLines(VARIANT_FALSE), L"Setting a property");
    user.wait();
    steps.expect_same(L"a change by the program shows in the grid", L"False",
                      container.grid().shown_value(L"GridLines"));
    SendMessageW(container.window(), WM_COMMAND, ID_EDIT_INSERT, 0);
    steps.expect(L"nothing is inserted into a running form", says(container.said(), L"F5 ends the run."));
    SendMessageW(container.window(), WM_COMMAND, ID_VIEW_RUN, 0);
    steps.expect_same(L"the design is as it was before the run", L"True", container.grid().shown_value(L"GridLines"));
    steps.expect_same(L"without the rows of the run", L"0", call(container, L"ListCount", {}));
    SendMessageW(container.window(), WM_COMMAND, ID_VIEW_NEXT_PANE, 0);
    steps.expect(L"F6 goes to the grid", container.grid().contains(GetFocus()));
    SendMessageW(container.window(), WM_COMMAND, ID_VIEW_NEXT_PANE, 0);
    steps.expect(L"then to the methods", container.methods().contains(GetFocus()));
    SendMessageW(container.window(), WM_COMMAND, ID_VIEW_NEXT_PANE, 0);
    steps.expect(L"then to the events", GetFocus() == container.log().window());
    SendMessageW(container.window(), WM_COMMAND, ID_VIEW_NEXT_PANE, 0);
    steps.expect(L"and back to the form", container.surface().contains(GetFocus()));
}

} // namespace vellora::samples
