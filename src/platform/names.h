// SPDX-License-Identifier: MIT
// Names of hosts.
#pragma once

#include <optional>
#include <string>

namespace tovi::platform {

// The first IPv4 address, dotted, that the system finds for a name in its own lists or by asking
// name servers; nothing when it finds none. Waits as long as those settings say. Needs no
// startUpSockets.
std::optional<std::string> addressOfName(const std::string& name);

}  // namespace tovi::platform
