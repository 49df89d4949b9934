// The frame that all flat functions share: the " start" line, a short-lived session, one method, a
// text. One function per kind of result; none lets an exception out, because no host could catch
// it.
#pragma once

#include <string>

#include <tovisdk/tovi_traffic.h>

namespace tovi::flat {

inline constexpr char kSuccess[] = "success";
inline constexpr char kFailed[] = "failed";

// Hosts may pass null where they mean nothing.
inline const char* textOf(const char* text) { return text == nullptr ? "" : text; }

void logStart(const char* name);

// Runs `use` on a session of its own; what it returns, or `otherwise` when it could not be carried
// out.
template <class Result, class Use>
Result withSession(const char* name, const char* ip, unsigned short port, Result otherwise,
                   Use use) {
  try {
    logStart(name);
    ToviTraffic session(textOf(ip), port);
    return use(session);
  } catch (...) {
    return otherwise;
  }
}

// Of a method that returns its code, or whether it worked.
template <class Method>
const char* status(const char* name, const char* ip, unsigned short port, Method method) {
  return withSession<const char*>(
      name, ip, port, kFailed, [&](ToviTraffic& session) -> const char* {
        return static_cast<int>(method(session)) == ToviTraffic::SUCCESS ? kSuccess : kFailed;
      });
}

// Of a method whose result nobody hears of.
template <class Method>
const char* always(const char* name, const char* ip, unsigned short port, Method method) {
  return withSession<const char*>(name, ip, port, kSuccess,
                                  [&](ToviTraffic& session) -> const char* {
                                    method(session);
                                    return kSuccess;
                                  });
}

const char* notImplemented(const char* name, const char* ip, unsigned short port);

// A text that the host owns: zero-terminated, in an array for deleteArry.
char* newHostText(const std::string& text);

// Of a method whose result is turned into a text.
template <class Method>
char* value(const char* name, const char* ip, unsigned short port, Method method) {
  return withSession<char*>(name, ip, port, nullptr,
                            [&](ToviTraffic& session) { return newHostText(method(session)); });
}

// The same with the mark that ends a report.
template <class Method>
char* report(const char* name, const char* ip, unsigned short port, Method method) {
  return value(name, ip, port,
               [&](ToviTraffic& session) { return method(session) + "interfaceEnd"; });
}

}  // namespace tovi::flat
