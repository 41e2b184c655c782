// Ctrl-C while a command runs. A long loop asks between objects whether the
// user wants to stop; a report that is asked to stop returns 1 at once, and
// the host turns the call into an "Interrupted" error.
#pragma once

namespace common {

// True once the user pressed Ctrl-C during the current command.
bool InterruptRequested();

}  // namespace common
