// SPDX-License-Identifier: MIT
#include <tovisdk/socket_result.h>

#include <algorithm>
#include <string_view>

#include "foundation/bytes.h"
#include "foundation/log.h"
#include "foundation/memory.h"
#include "session/session.h"

using namespace tovi;

void session::tellRelease() { log::print("SocketResult delete"); }

SocketResult::SocketResult(char* package, int length) : len(length), data(package) {}

SocketResult::~SocketResult() {
  delete[] data;
  data = nullptr;
  session::tellRelease();
}

int SocketResult::getLen() const { return len; }

char* SocketResult::getOrgChar() const { return data; }

// The command's code, in one byte or two, stands before the status byte; see the commands that use
// it.
bool SocketResult::isSetSuccess() const { return isSuccesed(3) && data[2] == SUCCESS; }

bool SocketResult::isSuccesed(int n) const { return len >= n && data != nullptr; }

char* SocketResult::toStrChar(int from) const {
  if (from < 0 || !isSuccesed(from)) return nullptr;
  char* const none = nullptr;
  return whereMemoryAllows(none, [&] { return newArray(viewOf(data + from, len - from)); });
}

std::string SocketResult::toStr(int from) const {
  if (from < 0 || !isSuccesed(from)) return {};
  const std::string_view rest = viewOf(data + from, len - from);
  return whereMemoryAllows(std::string(),
                           [&] { return std::string(rest.substr(0, rest.find('\0'))); });
}

std::string SocketResult::toStrT(int from) const {
  const int first = std::max(from, 0);
  if (data == nullptr || first >= len) return {};
  return whereMemoryAllows(std::string(),
                           [&] { return hexText(viewOf(data + first, len - first)); });
}

// At most eight digits, which no text of the library's needs memory for.
std::string SocketResult::DecIntToHexStr(int n) const {
  if (n < 0) return "0";
  const std::string higher = n / 16 > 0 ? DecIntToHexStr(n / 16) : "";
  return higher + "0123456789ABCDEF"[n % 16];
}
