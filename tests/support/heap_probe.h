// SPDX-License-Identifier: MIT
#pragma once

namespace tovi::test {

// Blocks that this thread has taken from the heap with new and not given back, as far as a
// difference of two readings tells.
long heapBlocksOfThisThread();

}  // namespace tovi::test
