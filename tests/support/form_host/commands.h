// The commands of the line protocol. A command is an object with "do" and what that takes; README.md in
// this folder names them all.
#pragma once

#include "support/form_host/host_form.h"
#include "support/form_host/json.h"

namespace vellora::test {

/// Carries a command out and returns its result. Throws JsonError or CallFailed when it fails.
Json carry_out(HostForm& host, const Json& command);

/// The answer line: {"ok": true, "result": ...} or {"ok": false, "error": ...}.
Json answer(HostForm& host, const Json& command) noexcept;

} // namespace vellora::test
