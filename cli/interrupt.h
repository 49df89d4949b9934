// Ctrl-C, for work that can stop in order.
#pragma once

namespace tovi::cli {

// From here on the first Ctrl-C is only noted; a second one ends the program at once.
void stopOnInterrupt();

bool interrupted();

}  // namespace tovi::cli
