// SPDX-License-Identifier: MIT
// What each method sends and makes of the answer, one row a case.
#pragma once

#include <span>
#include <string>

#include <tovisdk/tovisdk.h>

namespace tovi::test {

using enum ToviOutcome;

struct Call {
  const char* what;  // the method, then what is particular about the case
  std::string (*call)(ToviTraffic&);
  const char* request;  // command byte and payload; "|" between requests; empty: nothing is sent
  const char* reply;    // command byte and payload; "|" between replies; empty: silence
  std::string result;
  ToviOutcome outcome = Done;
};

// The tables, by theme.
extern const std::span<const Call> kPowerCalls;
extern const std::span<const Call> kBrightnessCalls;
extern const std::span<const Call> kTimetablesCalls;
extern const std::span<const Call> kClockCalls;
extern const std::span<const Call> kDisplayCalls;
extern const std::span<const Call> kNowPlayingCalls;
extern const std::span<const Call> kIdentityCalls;
extern const std::span<const Call> kNetworkCalls;
extern const std::span<const Call> kWirelessCalls;
extern const std::span<const Call> kMaintenanceCalls;
extern const std::span<const Call> kSecureModeCalls;
extern const std::span<const Call> kTransferCalls;

// Results as texts that a row can name.
inline std::string show(int number) { return std::to_string(number); }
inline std::string show(bool flag) { return flag ? "true" : "false"; }
std::string show(char* text);  // "null" for null; releases it

// A text as hexadecimal bytes, a blank before each.
std::string jsonHex(const std::string& text);

template <class... Values>
std::string show(const std::string& first, const Values&... values) {
  std::string text = first;
  ((text += " ", text += show(values)), ...);
  return text;
}
template <class... Values>
std::string show(int first, const Values&... values) {
  return show(std::to_string(first), values...);
}

}  // namespace tovi::test
