// SPDX-License-Identifier: MIT
// What the connecting and the accepting side share.
#pragma once

#include <netinet/in.h>

#include <climits>
#include <cstdint>
#include <optional>

#include "platform/sockets.h"

namespace tovi::platform {

// A handle that is no descriptor becomes -1, which every call refuses; cut to an int, it could name
// somebody else's descriptor.
inline int descriptorOf(Socket socket) { return socket <= INT_MAX ? static_cast<int>(socket) : -1; }

// Takes over a new close-on-exec descriptor. In a process that runs without standard streams it is
// moved above them: 0 means "no socket" to a session, and what anyone prints to descriptor 1 or 2
// would otherwise travel to the controller.
Socket adoptDescriptor(int descriptor);

// Nothing unless the text is an IPv4 address as inet_addr reads it: fields with leading zeros,
// which make them octal, fewer than four fields, and a closing blank are good.
std::optional<sockaddr_in> ipv4Address(const char* address, std::uint16_t port);

}  // namespace tovi::platform
