// SPDX-License-Identifier: MIT
// When the screen has power, which playlist plays and how bright it is.
#include <ctime>
#include <functional>
#include <list>

#include "cli/records.h"
#include "cli/themes.h"
#include "cli/times.h"

namespace tovi::cli {
namespace {

constexpr std::size_t kMostEntries = 255;

std::tm timeOf(const std::string& word) {
  const std::optional<std::tm> time = parseTime(word);
  if (!time) throw Unusable(quoted(word) + " is no time as in 2024-03-01T08:00:00");
  return *time;
}

// Timetables go out with calendar years and months, unlike everything else in a tm.
std::tm withCalendarFields(std::tm time) {
  time.tm_year += 1900;
  time.tm_mon += 1;
  return time;
}

// Entries "START END", those with a value "START END VALUE", one after another; "none" alone is the
// empty timetable.
template <class Entry>
std::list<Entry> parseTimetable(const std::vector<std::string>& words, int Entry::*value) {
  if (words == std::vector<std::string>{"none"}) return {};
  const std::size_t size = value == nullptr ? 2 : 3;
  std::list<Entry> entries;
  for (std::size_t i = 0; i + size <= words.size(); i += size) {
    Entry& entry = entries.emplace_back();
    entry.startTime = withCalendarFields(timeOf(words[i]));
    entry.endTime = withCalendarFields(timeOf(words[i + 1]));
    if (value != nullptr) entry.*value = numberWithin(words[i + 2], 0, 255);
    // Times sort like their texts.
    if (words[i + 1] < words[i]) throw Unusable(words[i + 1] + " is before " + words[i]);
  }
  if (words.empty() || words.size() % size != 0) {
    throw Unusable("the last entry has not " + std::to_string(size) + " parts");
  }
  if (entries.size() > kMostEntries) {
    throw Unusable("more than " + std::to_string(kMostEntries) + " entries");
  }
  return entries;
}

template <class Entry>
Argument<std::list<Entry>> timetable(const std::string& name, const std::string& help,
                                     int Entry::*value = nullptr) {
  return {name,
          help +
              " as in 2024-03-01T08:00:00.\n"
              "Further entries follow, up to 255; none empties the timetable",
          [value](const std::vector<std::string>& words) { return parseTimetable(words, value); },
          true};
}

template <class Entry>
Json period(const Entry& entry) {
  return {{"start", timeText(entry.startTime)}, {"end", timeText(entry.endTime)}};
}

Json shown(const std::list<DevicePowerByTimeParam>& list) {
  Json entries = Json::array();
  for (const auto& entry : list) entries.push_back(period(entry));
  return entries;
}

Json shown(const std::list<PlayByTimeParam>& list) {
  Json entries = Json::array();
  for (const auto& entry : list) {
    entries.push_back(period(entry));
    entries.back()["playId"] = playlistNumber(entry.playId);
  }
  return entries;
}

Json shown(const std::list<BrightnessByTimeParam>& list) {
  Json entries = Json::array();
  for (const auto& entry : list) {
    entries.push_back(period(entry));
    entries.back()["brightness"] = entry.brightness;
  }
  return entries;
}

}  // namespace

void addTimetables(Commands& commands) {
  commands.group("Timetables");
  commands.add("setDevicePowerByTimeList", "Set when the screen has power",
               sets(&ToviTraffic::setDevicePowerByTimeList),
               timetable<DevicePowerByTimeParam>("START END", "Times"));
  commands.add("getDevicePowerByTimeList", "Read when the screen has power, a line per entry",
               asks(&ToviTraffic::getDevicePowerByTimeList, shown));
  commands.add(
      "setPlayByTimeList", "Set which playlist plays when", sets(&ToviTraffic::setPlayByTimeList),
      timetable("START END PLAYLIST", "Playlists 0 to 255. Times", &PlayByTimeParam::playId));
  commands.add("getPlayByTimeList", "Read which playlist plays when, a line per entry",
               asks(&ToviTraffic::getPlayByTimeList, shown));
  commands.add({"setBrightnessByTimeList", {"setBrightness", "setBrightnessByTimeList"}},
               "Let the brightness follow a timetable", sets(&ToviTraffic::setBrightnessByTimeList),
               timetable("START END LEVEL", "Levels 0 (dark) to 255 (brightest). Times",
                         &BrightnessByTimeParam::brightness));
  commands.add("getBrightnessByTimeList", "Read the brightness's timetable, a line per entry",
               asks(&ToviTraffic::getBrightnessByTimeList, shown));
  commands.add("setAdvanceTiming", "Set the advance timing", sets(&ToviTraffic::setAdvanceTiming),
               text("TIMING"));
  commands.add("getAdvanceTiming", "Read the advance timing", asks(&ToviTraffic::getAdvanceTiming));
  commands.add("removeAdvanceTiming", "Remove the advance timing",
               sets(&ToviTraffic::removeAdvanceTiming));
}

}  // namespace tovi::cli
