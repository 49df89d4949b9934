#include <tovisdk/socket_result.h>

#include <algorithm>
#include <iostream>
#include <memory>

#include "foundation/bytes.h"
#include "session/session.h"

void tovi::session::tellRelease() { std::cout << "SocketResult delete" << std::endl; }

SocketResult::SocketResult(char* package, int length) : len(length), data(package) {}

SocketResult::~SocketResult() {
  delete[] data;
  data = nullptr;
  tovi::session::tellRelease();
}

int SocketResult::getLen() const { return len; }

char* SocketResult::getOrgChar() const { return data; }

// The command's code, in one byte or two, stands before the status byte; see the commands that use
// it.
bool SocketResult::isSetSuccess() const { return isSuccesed(3) && data[2] == SUCCESS; }

bool SocketResult::isSuccesed(int n) const { return len >= n && data != nullptr; }

char* SocketResult::toStrChar(int from) const {
  if (from < 0 || !isSuccesed(from)) return nullptr;
  return tovi::newArray(tovi::viewOf(data + from, len - from));
}

std::string SocketResult::toStr(int from) const {
  const std::unique_ptr<char[]> text(toStrChar(from));
  return text == nullptr ? "" : text.get();
}

std::string SocketResult::toStrT(int from) const {
  const int first = std::max(from, 0);
  return data == nullptr || first >= len ? ""
                                         : tovi::hexText(tovi::viewOf(data + first, len - first));
}

std::string SocketResult::DecIntToHexStr(int n) const {
  if (n < 0) return "0";
  const std::string higher = n / 16 > 0 ? DecIntToHexStr(n / 16) : "";
  return higher + "0123456789ABCDEF"[n % 16];
}
