// Making the control known to the machine or to one user, and forgetting it again.
#pragma once

namespace vellora::server {

enum class Scope { machine, user };

/// Throws com::ComFailure when the registry does not take a key, as without the rights for it. What was
/// written up to there is taken back.
void register_server(Scope scope);

/// Leaves nothing of this library. Keys that another file or the library of the other bitness still uses
/// stay. Not registered is no error.
void unregister_server(Scope scope);

} // namespace vellora::server
