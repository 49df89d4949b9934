// The frame that all flat functions share: the " start" line, a short-lived session, one method, a
// text. One function per kind of result; none lets an exception out, because no host could catch
// it. Each takes the method itself, or what else can be called with the session first, and the
// method's arguments.
#pragma once

#include <functional>
#include <string>

#include <tovisdk/tovi_traffic.h>

#include "flat/report_text.h"

namespace tovi::flat {

inline constexpr char kSuccess[] = "success";
inline constexpr char kFailed[] = "failed";

// The function by its name, and the controller.
struct Caller {
  const char* function;
  const char* ip;
  unsigned short port;
};

// Hosts may pass null where they mean nothing.
inline const char* textOf(const char* text) { return text == nullptr ? "" : text; }

void logStart(const Caller& caller);

// Runs `use` on a session of its own; what it returns, or `otherwise` when it could not be carried
// out.
template <class Result, class Use>
Result withSession(const Caller& caller, Result otherwise, Use use) {
  try {
    logStart(caller);
    ToviTraffic session(textOf(caller.ip), caller.port);
    return use(session);
  } catch (...) {
    return otherwise;
  }
}

// Of a method that returns its code, or whether it worked.
template <class Method, class... Arguments>
const char* status(const Caller& caller, Method method, const Arguments&... arguments) {
  return withSession<const char*>(caller, kFailed, [&](ToviTraffic& session) {
    const auto result = static_cast<int>(std::invoke(method, session, arguments...));
    return result == ToviTraffic::SUCCESS ? kSuccess : kFailed;
  });
}

// Of a method whose result nobody hears of.
template <class Method, class... Arguments>
const char* always(const Caller& caller, Method method, const Arguments&... arguments) {
  return withSession<const char*>(caller, kSuccess, [&](ToviTraffic& session) {
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
    return reportText(std::invoke(method, session, arguments...)) + kReportEnd;
  });
}

// The same of a timetable: one that could not be had is worth a warning.
template <class Entry>
char* timetable(const Caller& caller, std::list<Entry>* (ToviTraffic::*method)()) {
  return value(caller, [&](ToviTraffic& session) {
    return timetableText(caller.function, std::invoke(method, session)) + kReportEnd;
  });
}

}  // namespace tovi::flat
