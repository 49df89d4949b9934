#include "device/reply.h"

namespace tovi::device {

int Reply::unsignedByte(int n) const {
  if (n < 0 || n >= size() || mResult->getOrgChar() == nullptr) return 0;
  return static_cast<unsigned char>(mResult->getOrgChar()[n]);
}

}  // namespace tovi::device
