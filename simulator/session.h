// SPDX-License-Identifier: MIT
// What belongs to one connection and ends with it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "simulator/storage.h"

namespace tovi::sim {

// A file on its way in.
struct Upload {
  std::unique_ptr<Incoming> file;  // none once it has been kept or refused
  std::uint16_t next = 1;          // number of the next chunk
  bool whole = false;              // its last chunk has come, and no word on it has been given
  bool kept = false;
};

struct Session {
  std::optional<Upload> upload;

  // A playlist that came over this connection and may be asked for by the low byte of its number.
  std::optional<int> lastPlaylist;
};

}  // namespace tovi::sim
