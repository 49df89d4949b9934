// SPDX-License-Identifier: MIT
// The frame that all flat functions share: the " start" line, a short-lived session, one method, a
// text. One function per kind of result; none lets an exception out, because no host could catch
// it. Each takes the method itself, or what else can be called with the session first, and the
// method's arguments.
#pragma once

#include <functional>
#include <string>

#include <tovisdk/tovi_traffic.h>

#include "flat/report_text.h"
#include "foundation/memory.h"

namespace tovi::flat {

inline constexpr char kSuccess[] = "success";
inline constexpr char kFailed[] = "failed";

// The function by its name, and the controller.
struct Caller {
  const char* function;
  const char* ip;
  unsigned short port;
};

void logStart(const Caller& caller);

// Runs `use` on a session of its own; what it returns, or `otherwise` when there was no memory.
template <class Result, class Use>
Result withSession(const Caller& caller, Result otherwise, Use use) {
  logStart(caller);
  return whereMemoryAllows(otherwise, [&]() -> Result {
    ToviTraffic session(caller.ip == nullptr ? "" : caller.ip, caller.port);
    return use(session);
  });
}

// A null text is no argument: "no timetable" is an empty one.
template <class Argument>
bool isMissing(const Argument&) {
  return false;
}
inline bool isMissing(const char* text) { return text == nullptr; }

// Says so in the log, and gives the answer.
const char* refuseNull(const Caller& caller, const char* answer);

// Of a method that returns its code, or whether it worked.
template <class Method, class... Arguments>
const char* status(const Caller& caller, Method method, const Arguments&... arguments) {
  return withSession<const char*>(caller, kFailed, [&](ToviTraffic& session) {
    if ((isMissing(arguments) || ...)) return refuseNull(caller, kFailed);
    const auto result = static_cast<int>(std::invoke(method, session, arguments...));
    return result == ToviTraffic::SUCCESS ? kSuccess : kFailed;
  });
}

// Of a method whose result nobody hears of.
template <class Method, class... Arguments>
const char* always(const Caller& caller, Method method, const Arguments&... arguments) {
  return withSession<const char*>(caller, kSuccess, [&](ToviTraffic& session) {
    if ((isMissing(arguments) || ...)) return refuseNull(caller, kSuccess);
    std::invoke(method, session, arguments...);
    return kSuccess;
  });
}

const char* notImplemented(const Caller& caller);

// A text that the host owns: zero-terminated, in an array for deleteArry.
char* newHostText(const std::string& text);

// Of a method whose result is the text.
template <class Method>
char* value(const Caller& caller, Method method) {
  return withSession<char*>(caller, nullptr, [&](ToviTraffic& session) {
    return newHostText(std::invoke(method, session));
  });
}

// Of a method whose result is told as a report, with the mark that ends it.
template <class Method, class... Arguments>
char* report(const Caller& caller, Method method, const Arguments&... arguments) {
  return value(caller, [&](ToviTraffic& session) {
    return ended(reportText(std::invoke(method, session, arguments...)));
  });
}

// The same of a timetable: one that could not be had is worth a warning.
template <class Entry>
char* timetable(const Caller& caller, std::list<Entry>* (ToviTraffic::*method)()) {
  return value(caller, [&](ToviTraffic& session) {
    return ended(timetableText(caller.function, std::invoke(method, session)));
  });
}

}  // namespace tovi::flat
