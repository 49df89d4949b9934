// SPDX-License-Identifier: MIT
// What queries give, as values to show. Names and numbers are meant for people: calendar times,
// words for states, numbers as the setters take them. How a record of one theme is shown stands in
// that theme's file; here is what any theme may give.
#pragma once

#include <list>
#include <string>

#include "cli/output.h"

namespace tovi::cli {

Json shown(const std::string& text);
Json shown(const int& number);
Json shown(const std::list<std::string>& texts);

// Playlists have numbers from 0 to 255, but come as signed bytes.
int playlistNumber(int signedByte);

// "automatic", "manual" or "timetable"; the number where it means none of them.
Json brightnessMode(int mode);

}  // namespace tovi::cli
