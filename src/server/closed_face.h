// The closed control as a picture, taken from its windows as they are.
#pragma once

#include "server/constituent_peers.h"
#include "widgets/win32/face_painter.h"

namespace vellora {
struct ControlState;
}

namespace vellora::server {

win32::FieldFace closed_face(const ConstituentPeers& peers, const ControlState& state);

} // namespace vellora::server
