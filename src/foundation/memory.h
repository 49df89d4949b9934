// SPDX-License-Identifier: MIT
// Where memory may run out.
#pragma once

#include <new>
#include <utility>

namespace tovi {

// What an action gives, or `otherwise` when there was no memory for it: no host can catch what a
// library throws.
template <class Result, class Action>
Result whereMemoryAllows(Result otherwise, Action action) {
  try {
    return action();
  } catch (const std::bad_alloc&) {
    return otherwise;
  }
}

}  // namespace tovi
