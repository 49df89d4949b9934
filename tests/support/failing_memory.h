// SPDX-License-Identifier: MIT
// Memory that runs out when a test says so.
#pragma once

namespace tovi::test {

// While this lives, this thread's n-th new (counted from 1) finds no memory: that one alone, or all
// from there on.
class FailingMemory {
 public:
  FailingMemory(long n, bool fromThenOn);
  ~FailingMemory();
  FailingMemory(const FailingMemory&) = delete;
  FailingMemory& operator=(const FailingMemory&) = delete;

  // Whether the n-th was asked for.
  static bool struck();
};

// The test's own allocations, for as long as this lives.
class OwnMemory {
 public:
  OwnMemory();
  ~OwnMemory();
  OwnMemory(const OwnMemory&) = delete;
  OwnMemory& operator=(const OwnMemory&) = delete;

 private:
  bool mWasArmed;
};

}  // namespace tovi::test
