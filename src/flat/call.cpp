#include "flat/call.h"

#include "foundation/log.h"

namespace tovi::flat {

void logStart(const char* name) { log::info("%s start", name); }

const char* notImplemented(const char* name, const char* ip, unsigned short port) {
  static constexpr char kText[] = "Interface not implemented";
  return withSession<const char*>(name, ip, port, kText,
                                  [](ToviTraffic&) -> const char* { return kText; });
}

char* newHostText(const std::string& text) {
  char* result = new char[text.size() + 1]();
  text.copy(result, text.size());
  return result;
}

}  // namespace tovi::flat
