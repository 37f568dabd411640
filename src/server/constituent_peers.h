// The windows of one control, made together and in the order they lie over each other.
#pragma once

#include "control/core.h"
#include "widgets/win32/check_button_peer.h"
#include "widgets/win32/form_watch_peer.h"
#include "widgets/win32/frame_peer.h"
#include "widgets/win32/label_peer.h"
#include "widgets/win32/line_peer.h"
#include "widgets/win32/list_view_peer.h"
#include "widgets/win32/surface_window.h"
#include "widgets/win32/text_box_peer.h"
#include "widgets/win32/user32_peer.h"

#include <array>

namespace vellora::server {

struct ConstituentPeers {
    /// Made as children of the parking window. `compare` outlives them.
    ConstituentPeers(HWND parking, const TextCompare& compare, win32::FloatingWindowListener* floating);

    Constituents references();
    const win32::TextBoxPeer& text_box(std::int32_t alignment) const;
    const win32::CheckButtonPeer& visible_button() const;

    win32::SurfaceWindow surface;
    std::array<win32::TextBoxPeer, 3> text_boxes;
    std::array<win32::CheckButtonPeer, 2> buttons;
    win32::ListViewPeer list;
    win32::FramePeer frame;
    // Painted in this order: the border stays whole where the grip reaches it.
    std::array<win32::LabelPeer, 2> grip;
    win32::LinePeer left_line;
    win32::LinePeer right_line;
    win32::LinePeer bottom_line;
    win32::User32Peer user32;
    win32::FormWatchPeer form_watch;
};

} // namespace vellora::server
