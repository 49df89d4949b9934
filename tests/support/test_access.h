// SPDX-License-Identifier: MIT
// The private transport methods, for tests of what no command reaches by itself.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <tovisdk/tovisdk.h>

namespace tovi::test::access {

std::string makeSendPacket(ToviTraffic& traffic, short what, const std::string& data);
int normalSet(ToviTraffic& traffic, char what, char rspWhat, const std::string& data = {});
std::unique_ptr<SocketResult> getData(ToviTraffic& traffic, short what, short rspWhat, int bufSize);
std::unique_ptr<SocketResult> getDataOn(std::uint64_t socket, ToviTraffic& traffic, short what,
                                        short rspWhat);
std::uint64_t getSocket(ToviTraffic& traffic);
void closeSocket(ToviTraffic& traffic, std::uint64_t socket);
void setSocket(ToviTraffic& traffic, std::uint64_t socket);

std::string pending(const ProtocalParser& parser);
std::size_t roomSize(const ProtocalParser& parser);

}  // namespace tovi::test::access
