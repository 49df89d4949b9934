// SPDX-License-Identifier: MIT
// The messages of a file, which playlists are sent by, too.
#pragma once

#include <cstdint>
#include <string_view>

#include "session/session.h"

namespace tovi::transfer {

// Announces a file by its name.
int sendName(session::Session session, std::uint64_t socket, std::string_view name);

// Sends a file's content as one chunk, which carries the number 1.
int sendWhole(session::Session session, std::uint64_t socket, std::string_view content);

// Whether they fit a frame with the key that is set.
bool isName(session::Session session, std::string_view name);
bool isContent(session::Session session, std::string_view content);

// Waits until the controller has confirmed the file.
int awaitEnd(session::Session session, std::uint64_t socket);

}  // namespace tovi::transfer
