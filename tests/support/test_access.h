// The private transport methods, for tests of what no command reaches by itself.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <tovisdk/tovisdk.h>

struct ToviTestAccess {
  static std::string makeSendPacket(ToviTraffic& traffic, short what, std::string data) {
    int size = 0;
    const std::unique_ptr<char[]> frame(
        traffic.makeSendPacket(what, data.data(), static_cast<int>(data.size()), &size));
    return std::string(frame.get(), static_cast<std::size_t>(size));
  }
  static int normalSet(ToviTraffic& traffic, char what, char rspWhat, std::string data = {}) {
    return traffic.normalSet(what, rspWhat, data.data(), static_cast<int>(data.size()));
  }
  static std::unique_ptr<SocketResult> getData(ToviTraffic& traffic, short what, short rspWhat,
                                               int bufSize) {
    return std::unique_ptr<SocketResult>(traffic.getData(what, rspWhat, nullptr, 0, bufSize));
  }
  static std::unique_ptr<SocketResult> getDataOn(std::uint64_t socket, ToviTraffic& traffic,
                                                 short what, short rspWhat) {
    return std::unique_ptr<SocketResult>(traffic.getData(socket, what, rspWhat, nullptr, 0));
  }
  static std::uint64_t getSocket(ToviTraffic& traffic) { return traffic.getSocket(); }
  static void closeSocket(ToviTraffic& traffic, std::uint64_t socket) {
    traffic.closeSocket(socket);
  }
  static void setSocket(ToviTraffic& traffic, std::uint64_t socket) { traffic.setSocket(socket); }

  static bool needMore(const ProtocalParser& parser) { return parser.needMore; }
  static int packageLen(const ProtocalParser& parser) { return parser.packageLen; }
  static std::string pending(const ProtocalParser& parser) {
    return parser.pendingLen == 0
               ? ""
               : std::string(parser.pending, static_cast<std::size_t>(parser.pendingLen));
  }
};
