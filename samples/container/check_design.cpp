// Placing controls on the form, and the values of the property grid.
#include "check.h"
#include "commands.h"
#include "form_units.h"

namespace vellora::samples {

namespace {

std::wstring chosen_name(ContainerWindow& container) {
    const PlacedControl* const chosen = container.surface().chosen();
    return chosen ? chosen->name() : L"the form";
}

const FormControl& chosen_form(ContainerWindow& container) {
    return container.surface().chosen()->form();
}

void set(ContainerWindow& container, const wchar_t* property, const wchar_t* value) {
    container.grid().choose(property);
    container.grid().edit();
    container.grid().editor().set_text(value);
    container.grid().accept();
    container.refresh();
}

std::wstring shown(ContainerWindow& container, const wchar_t* property) {
    return container.grid().shown_value(property);
}

/// A drag with the mouse over the form, by grid steps.
void drag(ContainerWindow& container, POINT from, POINT by) {
    const HWND form = container.surface().window();
    SendMessageW(form, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
    SendMessageW(form, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(from.x + by.x, from.y + by.y));
    SendMessageW(form, WM_LBUTTONUP, 0, MAKELPARAM(from.x + by.x, from.y + by.y));
}

void check_view(FormSurface& surface, const User& user, Steps& steps) {
    const HWND form = surface.window();
    PlacedControl& control = *surface.controls().front();
    const SIZE size = surface.size_in_twips();
    const std::int32_t left = control.form().left;
    surface.resize({15000, size.cy});
    control.move_to(&FormControl::left, 12000);
    surface.choose(nullptr);
    user.press(form, VK_TAB);
    RECT place = control.place(), room{};
    MapWindowPoints(form, GetParent(form), reinterpret_cast<POINT*>(&place), 2);
    GetClientRect(GetParent(form), &room);
    steps.expect(L"Tab brings the control it chooses into view", place.left >= 0 && place.right <= room.right);
    control.move_to(&FormControl::left, left);
    surface.resize(size);
}

} // namespace

void check_design(ContainerWindow& container, const User& user, Steps& steps) {
    FormSurface& surface = container.surface();
    const HWND form = surface.window();
    steps.expect_same(L"the first form has one control", 1, static_cast<long>(surface.controls().size()));
    steps.expect_same(L"which is chosen", L"Vellora1", chosen_name(container));
    steps.expect(L"and there is nothing to save yet", !container.document().changed());
    SetFocus(form);
    user.press(form, VK_INSERT);
    steps.expect_same(L"Ins puts a second one on the form", L"Vellora2", chosen_name(container));
    steps.expect(L"the form is changed by that", container.document().changed());
    user.press(form, VK_TAB);
    steps.expect_same(L"Tab goes from the last control to the form", L"the form", chosen_name(container));
    user.press(form, VK_TAB);
    steps.expect_same(L"and on to the first control", L"Vellora1", chosen_name(container));
    const std::int32_t left = chosen_form(container).left;
    user.press(form, VK_RIGHT);
    steps.expect_same(L"an arrow moves it by a step of the grid", left + grid_twips, chosen_form(container).left);
    steps.expect_same(L"as the grid shows", std::to_wstring(left + grid_twips), shown(container, L"Left"));
    const RECT place = surface.chosen()->place();
    const POINT inside{place.left + 20, place.top + 8};
    drag(container, inside, {pixels_of(3 * grid_twips), pixels_of(4 * grid_twips)});
    steps.expect_same(L"the mouse drags it", left + 4 * grid_twips, chosen_form(container).left);
    steps.expect(L"nobody can type into a control that is being designed",
                 !IsWindowEnabled(surface.chosen()->window()));
    set(container, L"Width", L"2400");
    steps.expect_same(L"a typed width is the control's", 2400, chosen_form(container).width);
    set(container, L"Name", L"Vellora2");
    steps.expect_same(L"no two controls have one name", L"Name: There is a control Vellora2 already.",
                      container.said());
    set(container, L"Name", L"Paper");
    steps.expect_same(L"a control can be called something else", L"Paper", chosen_name(container));
    surface.choose_next(false);
    SetFocus(form);
    user.press(form, VK_DELETE);
    steps.expect_same(L"Del takes the chosen control away", 1, static_cast<long>(surface.controls().size()));
    check_view(surface, user, steps);
}

void check_values(ContainerWindow& container, const User& user, Steps& steps) {
    PropertyGrid& grid = container.grid();
    container.surface().choose(container.surface().controls().front().get());
    steps.expect_same(L"an enumeration shows its names", L"0 - vlNormal", shown(container, L"ButtonStyle"));
    steps.expect_same(L"all of them can be chosen from", 2, static_cast<long>(grid.choices(L"ButtonStyle").size()));
    set(container, L"ButtonStyle", L"1 - vlToggle");
    steps.expect_same(L"the chosen one is set", L"1 - vlToggle", shown(container, L"ButtonStyle"));
    set(container, L"DropDownHeight", L"-1");
    steps.expect_same(L"a refusal shows its number and its words", L"DropDownHeight: Error 380: Invalid property value",
                      container.said());
    steps.expect(L"and leaves what was typed to be mended", grid.editor().has_focus());
    user.press(GetFocus(), VK_ESCAPE);
    steps.expect_same(L"Esc brings the value back", L"8", grid.editor().text());
    steps.expect(L"and goes back to the list of properties", GetFocus() == grid.list());
    set(container, L"BackColor", L"&H00C0FFFF");
    steps.expect_same(L"a colour can be typed", L"&H00C0FFFF", shown(container, L"BackColor"));
    set(container, L"BackColor", L"&H80000005");
    const long height = container.surface().chosen()->form().height;
    set(container, L"Font", L"Tahoma, 12, bold");
    steps.expect_same(L"a font is typed as its name, size and styles", L"Tahoma, 12, bold", shown(container, L"Font"));
    steps.expect(L"and makes the control higher", container.surface().chosen()->form().height > height);
    set(container, L"Font", L"Tahoma, huge");
    steps.expect(L"what is no font is refused", says(container.said(), L"A font is its name and its size"));
    set(container, L"Version", L"9");
    steps.expect_same(L"what can only be read stays", L"Version: Version can only be read.", container.said());
    container.surface().choose(nullptr);
    set(container, L"Caption", L"A form");
    steps.expect_same(L"the form has properties too", L"A form", container.surface().caption());
    const std::wstring unshowable(L"A\0form", 6);
    container.surface().set_caption(unshowable);
    grid.choose(L"Caption");
    grid.edit();
    user.press(GetFocus(), VK_ESCAPE);
    steps.expect_same(L"a text that a field cannot show is not shortened by a look", unshowable,
                      container.surface().caption());
    container.surface().set_caption(L"A form");
}

} // namespace vellora::samples
