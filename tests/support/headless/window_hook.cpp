// Replacing and restoring procedures, each a line of the journal.
#include "support/headless/window_hook.h"

#include <utility>

namespace vellora::test {

WindowProcedure HeadlessWindowHook::replace_procedure(WindowHandle window) {
    desktop_.journal().add(Journal::Kind::system, "hook " + desktop_.name(window));
    if (!desktop_.exists(window)) {
        return 0;
    }
    return std::exchange(desktop_.at(window).procedure, procedure::replaced);
}

void HeadlessWindowHook::restore_procedure(WindowHandle window, WindowProcedure procedure) {
    desktop_.journal().add(Journal::Kind::system, "unhook " + desktop_.name(window));
    if (desktop_.exists(window)) {
        desktop_.at(window).procedure = procedure;
    }
}

} // namespace vellora::test
