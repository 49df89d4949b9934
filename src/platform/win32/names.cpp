// SPDX-License-Identifier: MIT
#include "platform/names.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include <memory>

#include "platform/sockets.h"

namespace tovi::platform {
namespace {

std::optional<std::string> lookUp(const std::string& name) {
  addrinfo wanted{};
  wanted.ai_family = AF_INET;
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (::getaddrinfo(name.c_str(), nullptr, &wanted, &found) != 0) return std::nullopt;
  const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> list(found, &::freeaddrinfo);

  const auto* address = reinterpret_cast<const sockaddr_in*>(list->ai_addr);
  char text[INET_ADDRSTRLEN];
  if (::inet_ntop(AF_INET, &address->sin_addr, text, sizeof text) == nullptr) return std::nullopt;
  return text;
}

}  // namespace

std::optional<std::string> addressOfName(const std::string& name) {
  if (startUpSockets() != StartUp::Ready) return std::nullopt;
  std::optional<std::string> address = lookUp(name);
  cleanUpSockets();
  return address;
}

}  // namespace tovi::platform
