// SPDX-License-Identifier: MIT
// Date, time zone and network time.
#include <charconv>
#include <chrono>

#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr long long kMinuteMs = 60'000;
constexpr long long kDayMs = kMinuteMs * 60 * 24;
constexpr long long kFarthestMs = 253'402'300'799'999;  // the end of the year 9999, and as far back
constexpr std::size_t kMaxText = 256;

// "GMT+08:00" as milliseconds; 0 for any other text.
long long offsetMs(std::string_view text) {
  if (text.size() != 9 || (text[3] != '+' && text[3] != '-') || text[6] != ':') return 0;
  int hours = 0;
  int minutes = 0;
  std::from_chars(text.data() + 4, text.data() + 6, hours);
  std::from_chars(text.data() + 7, text.data() + 9, minutes);
  return (text[3] == '-' ? -kMinuteMs : kMinuteMs) * (hours * 60 + minutes);
}

// The day of the month where the controller stands.
std::uint8_t localDay(const WallClock& clock) {
  const std::chrono::sys_time<std::chrono::milliseconds> local{
      std::chrono::milliseconds(clock.time + offsetMs(clock.offset))};
  const std::chrono::year_month_day day(std::chrono::floor<std::chrono::days>(local));
  return static_cast<std::uint8_t>(static_cast<unsigned>(day.day()));
}

Answer setTime(const Request& request) {
  const View payload = request.payload;
  const std::chrono::year_month_day date{std::chrono::year(lowFirst(payload)),
                                         std::chrono::month(payload[2]),
                                         std::chrono::day(payload[3])};
  const bool valid = date.ok() && date.year() >= std::chrono::year(1970) && payload[4] <= 23 &&
                     payload[5] <= 59 && payload[6] <= 59;
  if (!valid) return request.refuse();

  WallClock& clock = request.state.clock;
  const long long days = std::chrono::sys_days(date).time_since_epoch().count();
  const long long seconds = (payload[4] * 60 + payload[5]) * 60 + payload[6];
  clock.time = days * kDayMs + seconds * 1000 - offsetMs(clock.offset);
  request.state.date = payload[3];
  return request.accept("year " + std::to_string(lowFirst(payload)) + " month " +
                        std::to_string(payload[2]) + " day " + std::to_string(payload[3]) + " " +
                        std::to_string(payload[4]) + ":" + std::to_string(payload[5]) + ":" +
                        std::to_string(payload[6]));
}

std::string clockText(const WallClock& clock) {
  return std::to_string(clock.time) + "," + clock.zone + "," + clock.offset;
}

Answer setTimeAndTimeZone(const Request& request) {
  const std::string text = textOf(request.payload);
  const std::size_t first = text.find(',');
  const std::size_t second = text.find(',', first + 1);
  if (first == std::string::npos || second == std::string::npos) {
    return request.refuse(inQuotes(text));
  }
  WallClock clock = request.state.clock;
  const char* numberEnd = text.data() + first;
  const auto [stop, error] = std::from_chars(text.data(), numberEnd, clock.time);
  clock.zone = text.substr(first + 1, second - first - 1);
  clock.offset = text.substr(second + 1);
  const bool valid = error == std::errc{} && stop == numberEnd && clock.time >= -kFarthestMs &&
                     clock.time <= kFarthestMs && !clock.zone.empty() && !clock.offset.empty() &&
                     clock.offset.find(',') == std::string::npos;
  if (!valid) return request.refuse(inQuotes(text));
  request.state.clock = clock;
  request.state.date = localDay(clock);
  return request.accept(inQuotes(text));
}

// The one text query without a status in front.
Answer getTimeAndTimeZone(const Request& request) {
  const std::string text = clockText(request.state.clock);
  Bytes reply = bytesOf(text);
  reply.push_back(0);
  return request.tell(inQuotes(text), std::move(reply));
}

std::string ntpText(const WallClock& clock) {
  return onOff(clock.ntp) + ", server " + inQuotes(clock.ntpServer);
}

Answer setDeviceNTPParam(const Request& request) {
  if (request.payload[0] > 1) return request.refuse();
  WallClock& clock = request.state.clock;
  clock.ntp = request.payload[0] == 1;
  clock.ntpServer = textOf(request.payload.subspan(1));
  return request.accept(ntpText(clock));
}

Answer getDeviceNTPParam(const Request& request) {
  const WallClock& clock = request.state.clock;
  Bytes reply{byteOf(clock.ntp)};
  reply.insert(reply.end(), clock.ntpServer.begin(), clock.ntpServer.end());
  reply.push_back(0);
  return request.tell(ntpText(clock), std::move(reply));
}

constexpr Row kRows[] = {
    {command("setTime"), setTime, exactly(7)},
    {command("setTimeAndTimeZone"), setTimeAndTimeZone, atMost(kMaxText)},
    {command("getTimeAndTimeZone"), getTimeAndTimeZone},
    {command("setDeviceNTPParam"), setDeviceNTPParam, {1, kMaxText}},
    {command("getDeviceNTPParam"), getDeviceNTPParam},
};

}  // namespace

std::span<const Row> clockRows() { return kRows; }

}  // namespace tovi::sim
