// SPDX-License-Identifier: MIT
// What each method sends and makes of every answer, one row a call.
#pragma once

#include <string>
#include <vector>

#include <tovisdk/tovisdk.h>

namespace tovi::test {

using enum ToviOutcome;

// What a controller answers, and what the method makes of it.
struct Answer {
  std::string reply;  // command byte and payload; "|" between replies; empty: none is awaited
  std::string result;
  ToviOutcome outcome = Done;
};

struct Answers {
  std::string failure;  // the result where none comes, and of a call that is refused
  std::vector<Answer> each = {};
};

struct Call {
  const char* what;  // as it stands in code
  std::string (*call)(ToviTraffic&);
  std::string request;  // command byte and payload; "|" between requests; empty: it is refused
  Answers answers;
};

// The first two fields of a row. A method's name stands once in it.
#define CALL(...) #__VA_ARGS__, [](ToviTraffic & t) { return show(t.__VA_ARGS__); }
// The same for methods without a result.
#define TELL(...) #__VA_ARGS__, [](ToviTraffic & t) { return t.__VA_ARGS__, std::string(); }

inline Answers answers(const char* failure, const std::vector<Answer>& each) {
  return {failure, each};
}
// What the usual kinds of methods make of their answers. A code is the reply's.
Answers setting(const std::string& code);       // 1 or a negative code
Answers flag(const std::string& code);          // the same as a bool
Answers confirmation(const std::string& code);  // 16-bit: 1, 0 or -1
Answers question(const std::string& code);      // 16-bit: the same, where 0 is an answer
Answers signedByte(const std::string& code);
Answers text(const std::string& code);  // behind a status byte
Answers unanswered();

// Command byte or status, then a text.
std::string with(const std::string& bytes, const std::string& text);

// The tables, by theme.
extern const std::vector<Call> kPowerCalls;
extern const std::vector<Call> kBrightnessCalls;
extern const std::vector<Call> kTimetablesCalls;
extern const std::vector<Call> kClockCalls;
extern const std::vector<Call> kDisplayCalls;
extern const std::vector<Call> kNowPlayingCalls;
extern const std::vector<Call> kIdentityCalls;
extern const std::vector<Call> kNetworkCalls;
extern const std::vector<Call> kWirelessCalls;
extern const std::vector<Call> kMaintenanceCalls;
extern const std::vector<Call> kSecureModeCalls;
extern const std::vector<Call> kTransferCalls;

// Results as texts that a row can name.
inline std::string show(int number) { return std::to_string(number); }
inline std::string show(bool flag) { return flag ? "true" : "false"; }
inline std::string show(const std::string& text) { return text; }
std::string show(char* text);  // "null" for null; releases it

template <class First, class Second, class... More>
std::string show(const First& first, const Second& second, const More&... more) {
  return show(first) + " " + show(second, more...);
}

// A record that a method gives to its caller, who releases it.
template <class Record, class Show>
std::string taken(Record* record, Show shown) {
  if (record == nullptr) return "null";
  const std::string text = shown(*record);
  deleteObj(&record);
  return text;
}

}  // namespace tovi::test
