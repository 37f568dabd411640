// The window system's functions, carried out on the simulated desktop.
#include "support/headless/user32.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <utility>

namespace vellora::test {

namespace {

std::string readable(const PixelRect& rect) {
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + " " +
           std::to_string(rect.right - rect.left) + "x" + std::to_string(rect.bottom - rect.top);
}

std::string hexadecimal(std::uint32_t number) {
    char digits[16];
    std::snprintf(digits, sizeof digits, "0x%04X", number);
    return digits;
}

} // namespace

void HeadlessUser32::log(std::string line) const {
    desktop_.journal().add(Journal::Kind::system, std::move(line));
}

WindowHandle HeadlessUser32::create_popup(const PixelRect& rect) {
    log("create popup " + readable(rect));
    if (popups_fail) {
        return 0;
    }
    Desktop::Window window;
    window.name = "popup";
    window.rect = rect;
    return desktop_.create(window);
}

void HeadlessUser32::show_popup(WindowHandle window) {
    log("show " + desktop_.name(window));
    if (when_popup_shows) {
        when_popup_shows();
    }
}

void HeadlessUser32::destroy_window(WindowHandle window) {
    log("destroy " + desktop_.name(window));
    desktop_.destroy(window);
}

void HeadlessUser32::set_parent(WindowHandle child, WindowHandle parent) {
    log("parent of " + desktop_.name(child) + " " + desktop_.name(parent));
    desktop_.at(child).parent = parent;
}

WindowHandle HeadlessUser32::parent(WindowHandle window) const {
    return desktop_.exists(window) ? desktop_.at(window).parent : 0;
}

void HeadlessUser32::move_window(WindowHandle window, const PixelRect& rect, bool repaint) {
    log("move " + desktop_.name(window) + " " + readable(rect) + (repaint ? " repaint" : ""));
    desktop_.at(window).rect = rect;
}

std::optional<PixelRect> HeadlessUser32::window_rect(WindowHandle window) const {
    if (window == without_rect || !desktop_.exists(window)) {
        return std::nullopt;
    }
    return desktop_.screen_rect(window);
}

std::uint32_t HeadlessUser32::style(WindowHandle window) const {
    const Desktop::Window& here = desktop_.at(window);
    return here.style | (here.owner != nullptr ? here.owner->content_style() : 0U);
}

void HeadlessUser32::set_style(WindowHandle window, std::uint32_t style) {
    log("style of " + desktop_.name(window) + " " + hexadecimal(style));
    desktop_.at(window).style = style;
}

void HeadlessUser32::release_capture() {
    log("release capture");
    desktop_.set_capture(0);
}

int HeadlessUser32::system_metric(int index) const {
    const auto found = metrics.find(index);
    if (found != metrics.end()) {
        return found->second;
    }
    ADD_FAILURE() << "system metric " << index << " was not expected";
    return 0;
}

void HeadlessUser32::post_message(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                                  std::intptr_t lparam) {
    log("post " + desktop_.name(window) + " " + hexadecimal(message) + " " + std::to_string(wparam) + " " +
        std::to_string(lparam));
}

std::intptr_t HeadlessUser32::send_message(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                                           std::intptr_t lparam) {
    const bool carries_address =
        message == message::list_get_column_order || message == message::list_set_column_order;
    log("send " + desktop_.name(window) + " " + hexadecimal(message) + " " + std::to_string(wparam) + " " +
        (carries_address ? "order" : std::to_string(lparam)));
    return desktop_.send(window, message, wparam, lparam);
}

std::int32_t HeadlessUser32::header_item_at(WindowHandle, PixelPoint screen) const {
    hit_point = screen;
    return hit_item;
}

} // namespace vellora::test
