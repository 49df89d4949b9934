#include "cli/timetable.h"

#include "cli/reading.h"
#include "cli/times.h"

namespace tovi::cli {
namespace {

std::tm timeOf(const std::string& word) {
  const std::optional<std::tm> time = parseTime(word);
  if (!time) throw Unusable(quoted(word) + " is no time as in 2024-03-01T08:00:00");
  return *time;
}

}  // namespace

std::vector<TimetableEntry> parseTimetable(const std::vector<std::string>& words, bool withValue) {
  if (words == std::vector<std::string>{"none"}) return {};
  const std::size_t size = withValue ? 3 : 2;
  std::vector<TimetableEntry> entries;
  for (std::size_t i = 0; i + size <= words.size(); i += size) {
    entries.push_back({timeOf(words[i]), timeOf(words[i + 1]),
                       withValue ? numberWithin(words[i + 2], 0, 255) : 0});
    // Times sort like their texts.
    if (words[i + 1] < words[i]) throw Unusable(words[i + 1] + " is before " + words[i]);
  }
  if (words.empty() || words.size() % size != 0) {
    throw Unusable("the last entry has not " + std::to_string(size) + " parts");
  }
  if (entries.size() > kMostTimetableEntries) {
    throw Unusable("more than " + std::to_string(kMostTimetableEntries) + " entries");
  }
  return entries;
}

std::vector<CurvePoint> parseCurve(const std::vector<std::string>& words) {
  if (words.empty() || words.size() % 2 != 0 || words.size() > 2 * kCurvePoints) {
    throw Unusable("a curve has 1 to 8 pairs");
  }
  std::vector<CurvePoint> points;
  for (std::size_t i = 0; i < words.size(); i += 2) {
    points.push_back({numberWithin(words[i], 0, 255), numberWithin(words[i + 1], 0, 255)});
  }
  return points;
}

}  // namespace tovi::cli
