// SPDX-License-Identifier: MIT
// Ctrl-C and the system's request to end, for work that can stop in order.
#pragma once

namespace tovi::tools {

// From here on the first of them is only noted; one more ends the program at once.
void stopOnInterrupt();

bool interrupted();

}  // namespace tovi::tools
