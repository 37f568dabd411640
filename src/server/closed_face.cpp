#include "server/closed_face.h"

namespace vellora::server {

namespace {

RECT in_client(HWND window, HWND surface) {
    RECT rect{};
    GetWindowRect(window, &rect);
    MapWindowPoints(HWND_DESKTOP, surface, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

HWND window_of(const Widget& widget) { return reinterpret_cast<HWND>(widget.window()); }

SIZE size_of(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

} // namespace

win32::FieldFace closed_face(const ConstituentPeers& peers, const ControlState& state) {
    const HWND surface = peers.surface.handle();
    const win32::CheckButtonPeer& button = peers.visible_button();
    win32::FieldFace face;
    face.size = size_of(surface);
    face.back_color = peers.surface.back_color();
    face.text_field = peers.text_box(state.mlAlignment).face();
    face.button_place = in_client(window_of(button), surface);
    face.button = button.face();
    return face;
}

} // namespace vellora::server
