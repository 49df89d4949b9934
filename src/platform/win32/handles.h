// SPDX-License-Identifier: MIT
// What the connecting and the accepting side share.
#pragma once

#include <winsock2.h>

#include <cstdint>
#include <optional>

#include "platform/sockets.h"

namespace tovi::platform {

// Child processes shall not inherit the handle; INVALID_SOCKET passes through as kInvalidSocket.
Socket adoptHandle(SOCKET handle);

void setBlocking(SOCKET handle, bool blocking);

// Nothing unless the text is an IPv4 address as inet_addr reads it: fields with leading zeros,
// which make them octal, fewer than four fields, and a closing blank are good.
std::optional<sockaddr_in> ipv4Address(const char* address, std::uint16_t port);

}  // namespace tovi::platform
