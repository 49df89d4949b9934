// SPDX-License-Identifier: MIT
// The themes of the commands, each in the file of its name.
#pragma once

#include "cli/commands.h"

// A theme is one line here, in the order of --help.
#define TOVI_CLI_THEMES(THEME) \
  THEME(addPower)              \
  THEME(addBrightness)         \
  THEME(addTimetables)         \
  THEME(addClock)              \
  THEME(addDisplay)            \
  THEME(addNowPlaying)         \
  THEME(addIdentity)           \
  THEME(addNetwork)            \
  THEME(addWireless)           \
  THEME(addMaintenance)        \
  THEME(addSecureMode)         \
  THEME(addFiles)              \
  THEME(addPlaylists)          \
  THEME(addUpdates)            \
  THEME(addScreenshots)

namespace tovi::cli {

#define TOVI_DECLARE(add) void add(Commands& commands);
TOVI_CLI_THEMES(TOVI_DECLARE)
#undef TOVI_DECLARE

inline void addThemes(Commands& commands) {
#define TOVI_CALL(add) add(commands);
  TOVI_CLI_THEMES(TOVI_CALL)
#undef TOVI_CALL
}

}  // namespace tovi::cli
