#include "support/form_host/looks.h"

#include "support/container/text.h"
#include "support/form_host/values.h"

#include <commctrl.h>
#include <ocidl.h>
#include <string>
#include <vector>

namespace vellora::test {
namespace {

using Microsoft::WRL::ComPtr;

HWND create_child(HostForm& host, const wchar_t* class_name, DWORD style, const RECT& place) {
    return CreateWindowExW(0, class_name, L"", WS_CHILD | WS_VISIBLE | style, place.left, place.top,
                           place.right - place.left, place.bottom - place.top, host.form().window(), nullptr,
                           GetModuleHandleW(nullptr), nullptr);
}

void send_text(HWND window, UINT message, const Json& text) {
    SendMessageW(window, message, 0, reinterpret_cast<LPARAM>(wide(text.text()).c_str()));
}

HFONT font_handle(const Json& description) {
    const Variant object = to_variant(Json::Object{{"font", description}});
    ComPtr<IFont> font;
    HFONT handle = nullptr;
    object.get().pdispVal->QueryInterface(IID_PPV_ARGS(&font));
    font->get_hFont(&handle);
    LOGFONTW look{};
    GetObjectW(handle, sizeof look, &look);
    return CreateFontIndirectW(&look);
}

// Without the room for transparency that static controls under visual styles would take into account.
HBITMAP create_bitmap(SIZE size) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, size.cy, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

HBITMAP portrait_of(IViewObject* view, SIZE size) {
    HDC dc = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = create_bitmap(size);
    HGDIOBJ before = SelectObject(dc, bitmap);
    const RECTL bounds{0, 0, size.cx, size.cy};
    const HRESULT drawn =
        view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &bounds, nullptr, nullptr, 0);
    SelectObject(dc, before);
    DeleteDC(dc);
    if (FAILED(drawn))
        throw JsonError("the control draws no portrait");
    return bitmap;
}

} // namespace

Json create_combo(HostForm& host, const Json& command) {
    HWND combo = create_child(host, WC_COMBOBOXW, WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL,
                              to_rect(command.must("place")));
    SendMessageW(combo, WM_SETFONT, reinterpret_cast<WPARAM>(font_handle(command.must("font"))), TRUE);
    for (const Json& row : command.must("rows").list())
        send_text(combo, CB_ADDSTRING, row);
    send_text(combo, WM_SETTEXT, command.must("text"));
    host.adopt_window(command.must("name").text(), combo);
    return nullptr;
}

Json create_window(HostForm& host, const Json& command) {
    const std::wstring class_name = wide(command.must("class").text());
    const Json& style = command.get("style");
    HWND window = create_child(host, class_name.c_str(), style.is_null() ? 0 : static_cast<DWORD>(style.number()),
                               to_rect(command.must("place")));
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font_handle(command.must("font"))), TRUE);
    send_text(window, WM_SETTEXT, command.must("text"));
    host.adopt_window(command.must("name").text(), window);
    return nullptr;
}

Json create_portrait(HostForm& host, const Json& command) {
    const std::string& name = command.must("control").text();
    RECT shown{};
    GetWindowRect(host.window(name), &shown);
    const SIZE size{shown.right - shown.left, shown.bottom - shown.top};
    RECT place = to_rect(command.must("place"));
    HBITMAP bitmap = portrait_of(host.control(name).as<IViewObject>().Get(), size);
    HWND frame = create_child(host, WC_STATICW, SS_BITMAP, place);
    SendMessageW(frame, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap));
    host.adopt_window(command.must("name").text(), frame);
    return nullptr;
}

Json get_system_colors(HostForm&, const Json& command) {
    Json::Object colors;
    for (const Json& index : command.must("indices").list()) {
        const int number = static_cast<int>(index.number());
        colors[std::to_string(number)] = static_cast<long>(GetSysColor(number));
    }
    return colors;
}

Json set_system_colors(HostForm&, const Json& command) {
    std::vector<INT> indices;
    std::vector<COLORREF> colors;
    for (const auto& [index, color] : command.must("colors").object()) {
        indices.push_back(std::stoi(index));
        colors.push_back(static_cast<COLORREF>(color.number()));
    }
    SetSysColors(static_cast<int>(indices.size()), indices.data(), colors.data());
    return nullptr;
}

void use_visual_styles() {
    constexpr int manifest = 2; // of this program's resources
    ACTCTXW request{};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    request.hModule = GetModuleHandleW(nullptr);
    request.lpResourceName = MAKEINTRESOURCEW(manifest);
    ULONG_PTR cookie = 0;
    HANDLE context = CreateActCtxW(&request);
    if (context == INVALID_HANDLE_VALUE || !ActivateActCtx(context, &cookie))
        throw JsonError("no visual styles");
}

} // namespace vellora::test
