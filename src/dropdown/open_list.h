// Whether a list is open on this thread; at most one is, whichever instance it belongs to.
#pragma once

namespace vellora {

/// Up from the end of an opening until the end of the next closing. Each user-interface thread has its own, as
/// windows and focus belong to a thread.
extern thread_local bool gbListOpen;

} // namespace vellora
