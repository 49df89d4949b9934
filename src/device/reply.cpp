#include "device/reply.h"

namespace tovi::device {

int Reply::unsignedByte(int n) const {
  if (n < 0 || n >= size() || mResult->getOrgChar() == nullptr) return 0;
  return static_cast<unsigned char>(mResult->getOrgChar()[n]);
}

int Reply::integer(int n) const {
  const auto low = static_cast<unsigned>(unsignedShort(n));
  const auto high = static_cast<unsigned>(unsignedShort(n + 2));
  return static_cast<int>(low | high << 16);
}

}  // namespace tovi::device
