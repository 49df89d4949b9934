// SPDX-License-Identifier: MIT
#include "platform/names.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <sys/socket.h>

#include <memory>

namespace tovi::platform {

std::optional<std::string> addressOfName(const std::string& name) {
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

}  // namespace tovi::platform
