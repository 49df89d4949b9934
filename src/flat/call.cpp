// SPDX-License-Identifier: MIT
#include "flat/call.h"

#include "foundation/bytes.h"
#include "foundation/log.h"

namespace tovi::flat {

void logStart(const Caller& caller) { log::info("%s start", caller.function); }

const char* refuseNull(const Caller& caller, const char* answer) {
  log::error("%s refused: a text is null", caller.function);
  return answer;
}

const char* notImplemented(const Caller& caller) {
  static constexpr char kText[] = "Interface not implemented";
  return withSession<const char*>(caller, kText, [](ToviTraffic&) { return kText; });
}

char* newHostText(const std::string& text) { return newArray(text); }

}  // namespace tovi::flat
