#include "container_report.h"

#include "hosting/user.h"

#include <commctrl.h>

namespace vellora::samples {

namespace {

std::wstring pane_of(ContainerWindow& container) {
    const HWND focus = GetFocus();
    return container.grid().contains(focus)      ? L"grid"
           : container.methods().contains(focus) ? L"methods"
           : focus == container.log().window()   ? L"log"
           : container.surface().contains(focus) ? L"form"
                                                 : L"elsewhere";
}

RECT client_place(HWND window) {
    RECT rect{};
    GetClientRect(window, &rect);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace

void ContainerReport::update(ContainerWindow& container) {
    if (!states_.is_watched() || !container.window())
        return;
    const FormSurface& surface = container.surface();
    wchar_t title[300] = L"";
    GetWindowTextW(container.window(), title, ARRAYSIZE(title));
    states_.report(L"title", title);
    states_.report(L"window", text_of(place_of(container.window())));
    states_.report(L"mode", surface.running() ? L"run" : L"design");
    states_.report(L"form", text_of(client_place(surface.window())));
    states_.report(L"chosen", surface.chosen() ? surface.chosen()->name() : L"");
    states_.report(L"said", container.said());
    states_.report(L"focus", pane_of(container));
    states_.report(L"result", container.methods().result());
    for (const auto& [name, place] : container.grid().places()) {
        states_.report(L"place of property " + name, text_of(place));
        states_.report(L"property " + name, container.grid().shown_value(name));
    }
    report_controls(container);
    report_list();
}

void ContainerReport::report_controls(ContainerWindow& container) {
    for (const auto& control : container.surface().controls()) {
        Microsoft::WRL::ComPtr<_Vellora> live;
        states_.report(L"place of " + control->name(), text_of(place_of(control->window())));
        if (control->control() && SUCCEEDED(control->control()->QueryInterface(IID_PPV_ARGS(&live))))
            states_.report(L"text of " + control->name(), text_of(*live.Get()));
    }
}

void ContainerReport::report_list() {
    const HWND list = open_list();
    states_.report(L"list", list ? text_of(place_of(list)) : L"closed");
    RECT row{};
    if (!list || !ListView_GetItemRect(list, 1, &row, LVIR_BOUNDS))
        return;
    MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&row), 2);
    states_.report(L"second row", text_of(row));
}

} // namespace vellora::samples
