// SPDX-License-Identifier: MIT
// Compiled without access control: the public headers have no door for tests.
#include "tests/support/test_access.h"

#include "foundation/bytes.h"

namespace tovi::test::access {

std::string makeSendPacket(ToviTraffic& traffic, short what, const std::string& data) {
  std::string copy = data;
  int size = 0;
  const std::unique_ptr<char[]> frame(
      traffic.makeSendPacket(what, copy.data(), static_cast<int>(copy.size()), &size));
  return std::string(viewOf(frame.get(), size));
}

int normalSet(ToviTraffic& traffic, char what, char rspWhat, const std::string& data) {
  std::string copy = data;
  return traffic.normalSet(what, rspWhat, copy.data(), static_cast<int>(copy.size()));
}

std::unique_ptr<SocketResult> getData(ToviTraffic& traffic, short what, short rspWhat,
                                      int bufSize) {
  return std::unique_ptr<SocketResult>(traffic.getData(what, rspWhat, nullptr, 0, bufSize));
}

std::unique_ptr<SocketResult> getDataOn(std::uint64_t socket, ToviTraffic& traffic, short what,
                                        short rspWhat) {
  return std::unique_ptr<SocketResult>(traffic.getData(socket, what, rspWhat, nullptr, 0));
}

std::uint64_t getSocket(ToviTraffic& traffic) { return traffic.getSocket(); }

void closeSocket(ToviTraffic& traffic, std::uint64_t socket) { traffic.closeSocket(socket); }

void setSocket(ToviTraffic& traffic, std::uint64_t socket) { traffic.setSocket(socket); }

std::string pending(const ProtocalParser& parser) {
  return std::string(viewOf(parser.pending, parser.pendingLen));
}

std::size_t roomSize(const ProtocalParser& parser) { return parser.roomSize; }

}  // namespace tovi::test::access
