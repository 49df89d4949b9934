// Timetables and the clock.
#include "cli/commands.h"
#include "cli/times.h"
#include "platform/system.h"

namespace tovi::cli {
namespace {

// Timetables go out with calendar years and months, unlike everything else in a tm.
std::tm withCalendarFields(std::tm time) {
  time.tm_year += 1900;
  time.tm_mon += 1;
  return time;
}

template <class Entry>
std::list<Entry> listOf(const std::vector<TimetableEntry>& entries, int Entry::*value = nullptr) {
  std::list<Entry> list;
  for (const TimetableEntry& entry : entries) {
    Entry& added = list.emplace_back();
    added.startTime = withCalendarFields(entry.start);
    added.endTime = withCalendarFields(entry.end);
    if (value != nullptr) added.*value = entry.value;
  }
  return list;
}

Result setPowerTimes(Call& call, const std::vector<TimetableEntry>& entries) {
  const auto list = listOf<DevicePowerByTimeParam>(entries);
  return ofCode(call.traffic, call.traffic.setDevicePowerByTimeList(list));
}

Result setPlayTimes(Call& call, const std::vector<TimetableEntry>& entries) {
  const auto list = listOf(entries, &PlayByTimeParam::playId);
  return ofCode(call.traffic, call.traffic.setPlayByTimeList(list));
}

Result setBrightnessTimes(Call& call, const std::vector<TimetableEntry>& entries) {
  const auto list = listOf(entries, &BrightnessByTimeParam::brightness);
  return ofCode(call.traffic, call.traffic.setBrightnessByTimeList(list));
}

void addTimetableCommands(Commands& commands) {
  commands.group("Timetables");
  commands.add("set-device-power-by-time-list", "Set when the screen has power", setPowerTimes,
               timetable());
  commands.add("get-device-power-by-time-list", "Read when the screen has power, a line per entry",
               asks(&ToviTraffic::getDevicePowerByTimeList));
  commands.add("set-play-by-time-list", "Set which playlist plays when", setPlayTimes,
               timetable("PLAYLIST", "Playlists 0 to 255"));
  commands.add("get-play-by-time-list", "Read which playlist plays when, a line per entry",
               asks(&ToviTraffic::getPlayByTimeList));
  commands.add("set-brightness-by-time-list", "Let the brightness follow a timetable",
               setBrightnessTimes, timetable("LEVEL", "Levels 0 (dark) to 255 (brightest)"));
  commands.add("get-brightness-by-time-list", "Read the brightness's timetable, a line per entry",
               asks(&ToviTraffic::getBrightnessByTimeList));
  commands.add("set-advance-timing", "Set the advance timing", sets(&ToviTraffic::setAdvanceTiming),
               text("TIMING", "At most 4096 bytes", 0, 4096));
  commands.add("get-advance-timing", "Read the advance timing",
               asks(&ToviTraffic::getAdvanceTiming));
  commands.add("remove-advance-timing", "Remove the advance timing",
               sets(&ToviTraffic::removeAdvanceTiming));
}

Result setTime(Call& call, const Moment& moment) {
  std::tm time = moment ? *moment : platform::localTime(platform::now());
  return ofCode(call.traffic, call.traffic.setTime(&time));
}

Result setTimeAndZone(Call& call, const Moment& moment, const std::string& zone,
                      const std::string& offset) {
  const long long time = moment ? utcMilliseconds(*moment) : platform::now() * 1000LL;
  return ofCode(call.traffic, call.traffic.setTimeAndTimeZone({time, zone, offset}));
}

Result setTimeServer(Call& call, bool enabled, const std::string& server) {
  return ofCode(call.traffic, call.traffic.setDeviceNTPParam({enabled, server}));
}

void addClockCommands(Commands& commands) {
  commands.group("Clock");
  commands.add("set-time", "Set the clock", setTime,
               localMoment("TIME", "As in 2024-03-01T08:00:00; now is this machine's local time"));
  commands.add("set-time-and-time-zone", "Set clock and time zone", setTimeAndZone,
               utcMoment("TIME", "In UTC, as in 2024-03-01T00:00:00Z; or now"),
               word("ZONE", "As in Asia/Shanghai"), word("OFFSET", "As in GMT+08:00"));
  commands.add("get-time-and-time-zone", "Read the clock (in UTC) and the time zone",
               asks(&ToviTraffic::getTimeAndTimeZone));
  commands.add("set-device-ntp-param", "Set time synchronisation", setTimeServer,
               onOff("STATE", "on or off"), text("SERVER", "Host name or address"));
  commands.add("get-device-ntp-param", "Read time synchronisation",
               asks(&ToviTraffic::getDeviceNTPParam));
}

}  // namespace

void addScheduleCommands(Commands& commands) {
  addTimetableCommands(commands);
  addClockCommands(commands);
}

}  // namespace tovi::cli
