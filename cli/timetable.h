// Timetables and the brightness curve, as words of the command line.
#pragma once

#include <ctime>
#include <string>
#include <vector>

namespace tovi::cli {

struct TimetableEntry {
  std::tm start = {}, end = {};  // years from 1900, months from 0
  int value = 0;                 // 0 to 255
};

constexpr int kMostTimetableEntries = 255;

// Entries "START END", with a value "START END VALUE", one after another; "none" alone is the empty
// timetable. Throws Unusable.
std::vector<TimetableEntry> parseTimetable(const std::vector<std::string>& words, bool withValue);

struct CurvePoint {
  int ambient = 0, screen = 0;  // 0 to 255
};

constexpr int kCurvePoints = 8;

// Pairs "AMBIENT SCREEN", 1 to 8 of them. Throws Unusable.
std::vector<CurvePoint> parseCurve(const std::vector<std::string>& words);

}  // namespace tovi::cli
