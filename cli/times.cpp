// SPDX-License-Identifier: MIT
#include "cli/times.h"

#include <chrono>
#include <cstdio>

#include "tools/number.h"

namespace tovi::cli {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr int kFirstYear = 1900;

year_month_day dateOf(const std::tm& time) {
  return year(time.tm_year + kFirstYear) / month(static_cast<unsigned>(time.tm_mon + 1)) /
         day(static_cast<unsigned>(time.tm_mday));
}

// The fields of "2024-03-01T08:00:00", whatever their values.
bool readFields(std::string_view text, std::tm& time) {
  constexpr std::string_view kForm = "dddd-dd-ddTdd:dd:dd";
  if (text.size() != kForm.size()) return false;
  for (std::size_t i = 0; i < kForm.size(); ++i) {
    const bool isDigit = text[i] >= '0' && text[i] <= '9';
    if (kForm[i] == 'd' ? !isDigit : text[i] != kForm[i]) return false;
  }
  const auto field = [text](std::size_t from, std::size_t size) {
    return *tools::parseNumber(text.substr(from, size), 0, 9999);
  };
  time.tm_year = field(0, 4) - kFirstYear;
  time.tm_mon = field(5, 2) - 1;
  time.tm_mday = field(8, 2);
  time.tm_hour = field(11, 2);
  time.tm_min = field(14, 2);
  time.tm_sec = field(17, 2);
  return true;
}

}  // namespace

std::optional<std::tm> parseTime(std::string_view text) {
  std::tm time = {};
  if (!readFields(text, time)) return std::nullopt;
  const bool exists = time.tm_year >= 0 && dateOf(time).ok() && time.tm_hour < 24 &&
                      time.tm_min < 60 && time.tm_sec < 60;
  return exists ? std::optional(time) : std::nullopt;
}

std::string timeText(const std::tm& time) {
  char text[80];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", time.tm_year + kFirstYear,
                time.tm_mon + 1, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec);
  return text;
}

long long utcMilliseconds(const std::tm& time) {
  const auto moment = sys_days(dateOf(time)) + std::chrono::hours(time.tm_hour) +
                      std::chrono::minutes(time.tm_min) + std::chrono::seconds(time.tm_sec);
  return std::chrono::milliseconds(moment.time_since_epoch()).count();
}

std::string utcText(long long milliseconds) {
  constexpr long long kYear0 = -62'167'219'200'000;
  constexpr long long kYear10000 = 253'402'300'800'000;
  if (milliseconds < kYear0 || milliseconds >= kYear10000) return std::to_string(milliseconds);
  const std::chrono::sys_time<std::chrono::milliseconds> moment{
      std::chrono::milliseconds(milliseconds)};
  const auto midnight = std::chrono::floor<std::chrono::days>(moment);
  const year_month_day date(midnight);
  const std::chrono::hh_mm_ss clock(moment - midnight);
  std::tm time = {};
  time.tm_year = static_cast<int>(date.year()) - kFirstYear;
  time.tm_mon = static_cast<int>(static_cast<unsigned>(date.month())) - 1;
  time.tm_mday = static_cast<int>(static_cast<unsigned>(date.day()));
  time.tm_hour = static_cast<int>(clock.hours().count());
  time.tm_min = static_cast<int>(clock.minutes().count());
  time.tm_sec = static_cast<int>(clock.seconds().count());
  return timeText(time) + "Z";
}

}  // namespace tovi::cli
