// SPDX-License-Identifier: MIT
#include "session/reply.h"

#include <algorithm>

#include "foundation/bytes.h"
#include "session/session.h"

namespace tovi::session {

Reply::~Reply() {
  if (mPackage) tellRelease();
}

int Reply::unsignedByte(int n) const {
  if (n < 0 || n >= size()) return 0;
  return static_cast<unsigned char>((*mPackage)[static_cast<std::size_t>(n)]);
}

int Reply::integer(int n) const {
  const auto low = static_cast<unsigned>(unsignedShort(n));
  const auto high = static_cast<unsigned>(unsignedShort(n + 2));
  return static_cast<int>(low | high << 16);
}

std::string_view Reply::from(int n) const {
  if (!mPackage) return {};
  return std::string_view(*mPackage).substr(
      std::min(static_cast<std::size_t>(n), mPackage->size()));
}

std::string Reply::text(int n) const {
  const std::string_view rest = from(n);
  return std::string(rest.substr(0, rest.find('\0')));
}

char* Reply::newText(int n) const { return n <= size() && mPackage ? newArray(from(n)) : nullptr; }

}  // namespace tovi::session
